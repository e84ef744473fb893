#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/toolkit/Toolkit.h"
#include "tests/fakes/FakeInterface.h"

namespace tavrin {

// A toolkit without a screen. Installs itself for its life.
class FakeToolkit final : public Toolkit {
 public:
  FakeToolkit() { install(this); }
  ~FakeToolkit() override { install(nullptr); }

  std::shared_ptr<LoadedInterface> loadInterface(const Bundle& bundle, const std::string& name,
                                                 InterfaceBindings bindings) override;
  // Runs the next answer. If no answer is left, or the answer stops nothing, that means that the
  // program ends; a window that belongs to no interface cannot be shown.
  bool runModalForWindow(Window& window) override;
  void stopModal() override;

  // The last one loaded under that name; null before.
  std::shared_ptr<FakeInterface> interface(const std::string& name) { return loaded[name].lock(); }

  // What the user does with the windows as they come up, one answer a window.
  using Answer = std::function<void(FakeInterface& windows)>;
  std::deque<Answer> answers;
  // The names of the windows that came up.
  std::vector<std::string> shown;
  // Interface files that cannot be loaded.
  std::vector<std::string> missing;
  // Outlets that no object of an interface file has.
  std::vector<std::string> unconnected;
  // Called with each new interface before its owner goes on: sets the file's initial state.
  std::function<void(const std::string& name, FakeInterface&)> onLoad;

  // The runs on the stack, and the most that ever were.
  int runs() const { return static_cast<int>(stopped.size()); }
  int mostRuns = 0;

 private:
  std::shared_ptr<FakeInterface> interfaceOf(const Window& window) const;

  std::map<std::string, std::weak_ptr<FakeInterface>> loaded;
  std::vector<std::weak_ptr<FakeInterface>> everyLoaded;
  std::vector<bool> stopped;  // one entry a run on the stack
};

}  // namespace tavrin
