#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <variant>

#include "platform/toolkit/Outlet.h"

namespace tavrin {

// What the owner of an interface file offers it: outlets by the file's object names, actions by the
// selectors that the file's controls carry, and what to do when a window closes. The owner outlives
// the interface or calls LoadedInterface::detach.
class InterfaceBindings {
 public:
  using AnyOutlet = std::variant<Outlet<View>*, Outlet<PopUpButton>*, Outlet<Button>*,
                                 Outlet<Slider>*, Outlet<Label>*, Outlet<Window>*>;
  using AnyAction = std::variant<std::function<void(PopUpButton&)>, std::function<void(Button&)>,
                                 std::function<void(Slider&)>>;

  // Offers an outlet to the object of that name.
  template <class T>
  void outlet(std::string name, Outlet<T>& place) {
    outlets.emplace(std::move(name), &place);
  }

  // Offers an action ("paperTypeAction:"). It is given the control that the user changed, runs
  // after the change, and never when the program made it.
  template <class Sender>
  void action(std::string selector, std::function<void(Sender&)> body) {
    actions.emplace(std::move(selector), std::move(body));
  }

  std::map<std::string, AnyOutlet> outlets;
  std::map<std::string, AnyAction> actions;
  // Called once whenever a window of the file closes, whoever closes it; may be empty.
  std::function<void()> windowWillClose;
};

}  // namespace tavrin
