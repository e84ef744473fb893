#include "platform/qt/toolkit/QtToolkit.h"

#include <utility>

#include "platform/files/Bundle.h"
#include "platform/qt/controls/QtView.h"
#include "platform/qt/toolkit/InterfaceLoader.h"
#include "platform/qt/toolkit/QtLoadedInterface.h"
#include "platform/qt/windows/QtWindow.h"

namespace tavrin {

std::shared_ptr<LoadedInterface> QtToolkit::loadInterface(const Bundle& bundle,
                                                          const std::string& name,
                                                          InterfaceBindings bindings) {
  const auto file = bundle.resource(name + ".ui");
  return file ? loadInterfaceFrom(*file, std::move(bindings)) : nullptr;
}

std::shared_ptr<LoadedInterface> QtToolkit::loadInterfaceFrom(const std::filesystem::path& file,
                                                              InterfaceBindings bindings) {
  auto root = loadInterfaceFile(file);
  return root
             ? QtLoadedInterface::make(std::move(root), std::move(bindings), actions, pendingChange)
             : nullptr;
}

bool QtToolkit::runModalForWindow(Window& window) {
  auto* shown = dynamic_cast<QtWindow*>(&window);
  return shown && runs.run(*shown);
}

void QtToolkit::onModalWindow(std::function<void(QWidget&)> observer) {
  runs.observer = std::move(observer);
}

QWidget* QtToolkit::widgetOf(View& view) {
  const auto* holder = dynamic_cast<WidgetHolder*>(&view);
  return holder ? holder->heldWidget() : nullptr;
}

}  // namespace tavrin
