#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include <QPointer>
#include <QWidget>

#include "platform/toolkit/InterfaceBindings.h"
#include "platform/toolkit/LoadedInterface.h"

namespace tavrin {

class ActionRuns;
class PendingChange;
class QtWindow;

// The widgets of one interface file, the objects on them, and their owner's bindings. Stays alive
// while one of its actions runs, or one of its windows is in a modal run or closing, even if
// everyone lets go of it in the meantime.
class QtLoadedInterface : public LoadedInterface,
                          public std::enable_shared_from_this<QtLoadedInterface> {
 public:
  // Connects the outlets for which the file has objects. The interface is detached from its owner
  // when the caller drops the answer; runs and pending change outlive it.
  static std::shared_ptr<LoadedInterface> make(std::unique_ptr<QWidget> root,
                                               InterfaceBindings bindings, ActionRuns& actions,
                                               PendingChange& pendingChange);
  ~QtLoadedInterface() override;

  void detach() override;
  std::vector<std::string> problems() const override { return found; }

 private:
  using Object = std::variant<View*, PopUpButton*, Button*, Slider*, Label*, Window*>;

  QtLoadedInterface(std::unique_ptr<QWidget> root, InterfaceBindings bindings, ActionRuns& runs,
                    PendingChange& pending);

  void makeObjects();
  Object makeObject(QWidget& widget);
  template <class Wrapper, class... Args>
  Wrapper* makeControl(Args&&... args);
  Window* makeWindow(QWidget& widget);
  void bindAction(const QWidget& widget, const Object& object);
  template <class Sender, class Given>
  bool runOnChange(const std::function<void(Sender&)>& body, Given* control);
  void connectOutlets();
  void reportUnusedActions();
  void windowCloses();

  QPointer<QWidget> root;  // ours, unless the program gave it a parent and deleted that
  InterfaceBindings bindings;
  ActionRuns& actions;
  PendingChange& pendingChange;
  bool detached = false;
  std::vector<std::unique_ptr<View>> views;
  std::vector<std::unique_ptr<QtWindow>> windows;
  std::map<std::string, Object> objects;  // by object name
  std::set<std::string> usedActions;
  std::vector<std::string> found;  // problems
};

}  // namespace tavrin
