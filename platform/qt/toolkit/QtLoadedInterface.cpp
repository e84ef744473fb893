#include "platform/qt/toolkit/QtLoadedInterface.h"

#include <type_traits>
#include <utility>

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSlider>

#include "platform/qt/controls/QtButton.h"
#include "platform/qt/controls/QtLabel.h"
#include "platform/qt/controls/QtPopUpButton.h"
#include "platform/qt/controls/QtSlider.h"
#include "platform/qt/controls/QtTextLabel.h"
#include "platform/qt/layout/PanelLayout.h"
#include "platform/qt/toolkit/ActionRuns.h"
#include "platform/qt/windows/QtWindow.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

// Connects the outlet when the object is of its kind; any view is a view.
template <class Wanted, class Given>
bool connectOutlet(Outlet<Wanted>& outlet, Given& object) {
  constexpr bool fits = std::is_same_v<Wanted, Given> ||
                        (std::is_same_v<Wanted, View> && std::is_base_of_v<View, Given>);
  if constexpr (fits) outlet.connect(object);
  return fits;
}

void onUserChange(PopUpButton& control, std::function<void()> body) {
  static_cast<QtPopUpButton&>(control).onUserChange(std::move(body));
}
void onUserChange(Button& control, std::function<void()> body) {
  static_cast<QtButton&>(control).onUserChange(std::move(body));
}
void onUserChange(Slider& control, std::function<void()> body) {
  static_cast<QtSlider&>(control).onUserChange(std::move(body));
}

// The parts of the toolkit's own widgets have names, too.
bool isOfTheFile(const QWidget& widget) {
  const QString name = widget.objectName();
  return !name.isEmpty() && !name.startsWith(QStringLiteral("qt_"));
}

}  // namespace

QtLoadedInterface::QtLoadedInterface(std::unique_ptr<QWidget> widgets, InterfaceBindings offered,
                                     ActionRuns& runs, PendingChange& pending)
    : root(widgets.release()),
      bindings(std::move(offered)),
      actions(runs),
      pendingChange(pending) {}

std::shared_ptr<LoadedInterface> QtLoadedInterface::make(std::unique_ptr<QWidget> root,
                                                         InterfaceBindings bindings,
                                                         ActionRuns& actions,
                                                         PendingChange& pendingChange) {
  std::shared_ptr<QtLoadedInterface> whole(
      new QtLoadedInterface(std::move(root), std::move(bindings), actions, pendingChange));
  whole->makeObjects();
  whole->connectOutlets();
  whole->reportUnusedActions();
  // The objects may outlive this handle, but whoever drops it does not expect to be called again.
  return {whole.get(), [whole](LoadedInterface*) { whole->detach(); }};
}

// The widgets may be in the middle of sending a signal, so they are deleted afterwards.
QtLoadedInterface::~QtLoadedInterface() {
  if (!root) return;
  root->hide();
  root->setParent(nullptr);
  root->deleteLater();
}

void QtLoadedInterface::detach() {
  const auto alive = shared_from_this();
  detached = true;
  for (const auto& window : windows) window->close();
}

void QtLoadedInterface::makeObjects() {
  if (!root->layout() && root->findChild<QDialog*>() == nullptr) PanelLayout::takeOver(*root);
  QList<QWidget*> widgets = root->findChildren<QWidget*>();
  widgets.prepend(root);
  for (QWidget* widget : widgets) {
    if (!isOfTheFile(*widget)) continue;
    const std::string name = widget->objectName().toStdString();
    const auto [place, isNew] = objects.emplace(name, Object{});
    if (!isNew) {
      found.push_back("The interface file has several objects named " + quotedInShort(name) + ".");
      continue;
    }
    place->second = makeObject(*widget);
    bindAction(*widget, place->second);
  }
}

template <class Wrapper, class... Args>
Wrapper* QtLoadedInterface::makeControl(Args&&... args) {
  auto made = std::make_unique<Wrapper>(args...);
  Wrapper* control = made.get();
  views.push_back(std::move(made));
  return control;
}

Window* QtLoadedInterface::makeWindow(QWidget& widget) {
  auto& window = windows.emplace_back(std::make_unique<QtWindow>(static_cast<QDialog&>(widget)));
  window->setOwner(weak_from_this());
  window->onClosing([this] { windowCloses(); });
  return window.get();
}

QtLoadedInterface::Object QtLoadedInterface::makeObject(QWidget& widget) {
  if (qobject_cast<QDialog*>(&widget)) return makeWindow(widget);
  if (auto* box = qobject_cast<QComboBox*>(&widget))
    return makeControl<QtPopUpButton>(*box, pendingChange);
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return makeControl<QtButton>(*button);
  if (auto* slider = qobject_cast<QSlider*>(&widget)) return makeControl<QtSlider>(*slider);
  if (auto* label = qobject_cast<QLabel*>(&widget)) return makeControl<QtLabel>(*label);
  if (auto* text = qobject_cast<QPlainTextEdit*>(&widget)) return makeControl<QtTextLabel>(*text);
  return makeControl<QtView>(widget);
}

void QtLoadedInterface::bindAction(const QWidget& widget, const Object& object) {
  const std::string selector = widget.property(kAction).toString().toStdString();
  if (selector.empty()) return;
  const std::string control = quotedInShort(widget.objectName().toStdString());
  const auto action = bindings.actions.find(selector);
  if (action == bindings.actions.end()) {
    found.push_back(control + " carries the action " + quotedInShort(selector) +
                    ", which nobody offers.");
    return;
  }
  usedActions.insert(selector);
  const bool fits =
      std::visit([this](const auto& body, auto* sender) { return runOnChange(body, sender); },
                 action->second, object);
  if (!fits)
    found.push_back("The action " + quotedInShort(selector) +
                    " does not fit the kind of control that " + control + " is.");
}

// False when the action is for another kind of control.
template <class Sender, class Given>
bool QtLoadedInterface::runOnChange(const std::function<void(Sender&)>& body, Given* control) {
  constexpr bool fits = std::is_same_v<Sender, Given>;
  if constexpr (fits)
    onUserChange(*control, [this, body, control] {
      const auto alive = shared_from_this();
      if (!detached) actions.run([&] { body(*control); });
    });
  return fits;
}

void QtLoadedInterface::connectOutlets() {
  for (const auto& [name, outlet] : bindings.outlets) {
    const auto object = objects.find(name);
    const bool fits =
        object != objects.end() &&
        std::visit([](auto* place, auto* target) { return connectOutlet(*place, *target); }, outlet,
                   object->second);
    if (!fits)
      found.push_back("The interface file has no object of the right kind named " +
                      quotedInShort(name) + ".");
  }
}

void QtLoadedInterface::reportUnusedActions() {
  for (const auto& [selector, body] : bindings.actions)
    if (!usedActions.contains(selector))
      found.push_back("No control of the interface file carries the action " +
                      quotedInShort(selector) + ".");
}

void QtLoadedInterface::windowCloses() {
  if (detached || !bindings.windowWillClose) return;
  const auto body = bindings.windowWillClose;
  body();
}

}  // namespace tavrin
