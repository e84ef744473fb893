#include "tests/fakes/FakeToolkit.h"

#include <algorithm>
#include <utility>

namespace tavrin {

std::shared_ptr<LoadedInterface> FakeToolkit::loadInterface(const Bundle&, const std::string& name,
                                                            InterfaceBindings bindings) {
  if (std::find(missing.begin(), missing.end(), name) != missing.end()) return nullptr;
  for (const std::string& outlet : unconnected) bindings.outlets.erase(outlet);
  auto made = std::make_shared<FakeInterface>(std::move(bindings));
  loaded[name] = made;
  std::erase_if(everyLoaded, [](const auto& each) { return each.expired(); });
  everyLoaded.push_back(made);
  if (onLoad) onLoad(name, *made);
  return made;
}

bool FakeToolkit::runModalForWindow(Window& window) {
  const auto windows = interfaceOf(window);
  if (!windows) return false;
  shown.push_back(*windows->nameOf(window));
  if (answers.empty()) return false;
  const Answer answer = std::move(answers.front());
  answers.pop_front();
  stopped.push_back(false);
  mostRuns = std::max(mostRuns, runs());
  answer(*windows);
  const bool wasStopped = stopped.back();
  stopped.pop_back();
  return wasStopped;
}

std::shared_ptr<FakeInterface> FakeToolkit::interfaceOf(const Window& window) const {
  for (const auto& each : everyLoaded) {
    const auto made = each.lock();
    if (made && made->nameOf(window)) return made;
  }
  return nullptr;
}

void FakeToolkit::stopModal() {
  if (!stopped.empty()) stopped.back() = true;
}

}  // namespace tavrin
