#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/text/OptionalString.h"

// The controls of a panel and its message windows, as the core sees them. A toolkit library
// implements these classes on real widgets; the core never meets a widget.
//
// Everything here is used on the user-interface thread only. Objects belong to the interface that
// they were loaded with; the core reaches them through outlets and never deletes one.

namespace tavrin {

class Bundle;

// A place and a size in points: the origin is the bottom left corner, y grows upwards, and a
// view's frame is in the coordinates of its parent.
struct Rect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  friend bool operator==(const Rect&, const Rect&) = default;
};

// Anything with a place in a panel.
class View {
 public:
  virtual ~View() = default;

  // The frame as it was last set (or as the interface file has it): a toolkit that draws the view
  // elsewhere or larger, because the font or a translation asks for it, does not change it.
  virtual Rect frame() const = 0;
  virtual void setFrame(const Rect& frame) = 0;

  // The view's own flag, whatever its parents are.
  virtual bool isHidden() const = 0;
  virtual void setHidden(bool hidden) = 0;

  // Asks for the view to be drawn again soon.
  virtual void setNeedsDisplay() = 0;

  void setFrameOrigin(double x, double y);
  void setFrameSize(double width, double height);
};

// A view that the user can work.
class Control : public View {
 public:
  virtual bool isEnabled() const = 0;
  virtual void setEnabled(bool enabled) = 0;
};

// A list of items of which one is selected.
class PopUpButton : public Control {
 public:
  virtual void removeAllItems() = 0;
  // Adds an item at the end, also when another one has the same title. The first item of an empty
  // pop-up becomes the selected one. The value is the caller's, for itemValue.
  virtual void addItem(const std::string& title, const std::string& value) = 0;

  virtual int numberOfItems() const = 0;
  // Absent where there is no such item.
  virtual OptString itemTitle(int index) const = 0;
  virtual OptString itemValue(int index) const = 0;

  // -1 when no item is selected.
  virtual int indexOfSelectedItem() const = 0;
  // Absent when no item is selected.
  OptString titleOfSelectedItem() const { return itemTitle(indexOfSelectedItem()); }
  // Selects the first item with that title; an absent title, or one that no item has, leaves no
  // item selected.
  virtual void selectItemWithTitle(const OptString& title) = 0;
};

// A check box, a radio button, a disclosure triangle or a push button.
class Button : public Control {
 public:
  // 1 on, 0 off; a push button is always 0.
  virtual int intValue() const = 0;
  // 1 on, 0 off. Never runs the button's action and turns no other button off.
  virtual void setState(int state) = 0;
  // Shown as it is: no markup, no mnemonic.
  virtual void setTitle(const std::string& title) = 0;
};

// A knob on a scale of whole numbers; the interface file has the range.
class Slider : public Control {
 public:
  virtual int intValue() const = 0;
  // A value outside the range becomes the nearest end.
  virtual void setIntValue(int value) = 0;
};

// Grey is how the toolkit writes what cannot be used now, black its ordinary text.
enum class TextColor { grey, black };

// A text that the user only reads.
class Label : public View {
 public:
  // Shown as it is: no markup, no mnemonic; line breaks break lines in a label of several lines.
  virtual void setStringValue(const std::string& text) = 0;
  virtual void setTextColor(TextColor color) = 0;
};

// A window that is run modally.
class Window {
 public:
  virtual ~Window() = default;
  virtual void setTitle(const std::string& title) = 0;
  // Puts the window, sized to its texts, in the middle of the window that it covers.
  virtual void center() = 0;
  // Brings the window up.
  virtual void display() = 0;
  // Takes the window down, telling its delegate once. Nothing for a closed or closing window.
  virtual void close() = 0;
};

// The object of its kind that stands in for one that is not there: it ignores commands and
// answers 0, false or absent.
template <class T>
T& nullObject();
template <>
View& nullObject<View>();
template <>
PopUpButton& nullObject<PopUpButton>();
template <>
Button& nullObject<Button>();
template <>
Slider& nullObject<Slider>();
template <>
Label& nullObject<Label>();
template <>
Window& nullObject<Window>();

// Where a controller reaches one object of its interface file. Never null to its users: until the
// file connects it, it stands on the null object.
template <class T>
class Outlet {
 public:
  bool isConnected() const { return target != &nullObject<T>(); }
  void connect(T& object) { target = &object; }

  T* operator->() const { return target; }
  T& operator*() const { return *target; }

 private:
  T* target = &nullObject<T>();
};

// What the owner of an interface file offers it: outlets by the object names of the file, actions
// by the selectors that the file's controls carry, and what to do when a window closes. The owner
// outlives the bindings' use or calls LoadedInterface::detach.
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

  // Offers an action ("paperTypeAction:"). It runs with the control that the user changed, after
  // the change, and only when the user made it.
  template <class Sender>
  void action(std::string selector, std::function<void(Sender&)> body) {
    actions.emplace(std::move(selector), std::move(body));
  }

  std::map<std::string, AnyOutlet> outlets;
  std::map<std::string, AnyAction> actions;
  // Called once as a window of the file closes, whoever closes it; may be empty.
  std::function<void()> windowWillClose;
};

// The objects that were made from one interface file; they live as long as this does.
class LoadedInterface {
 public:
  virtual ~LoadedInterface() = default;

  // The owner goes away: from now on no action runs and no delegate is told. Its windows close
  // unseen by it; a modal run of one of them ends.
  virtual void detach() = 0;

  // Every name in which file and owner disagree, one sentence each: an outlet that no object of
  // the right kind has, an action that nobody offers. Empty when they fit.
  virtual std::vector<std::string> problems() const = 0;
};

// Loads interface files and runs windows modally. The program that shows the panel installs one.
class Toolkit {
 public:
  virtual ~Toolkit() = default;

  // The toolkit of this process; before a program has installed one, a toolkit that can load
  // nothing.
  static Toolkit& current();
  // Borrowed; must outlive every panel. Null takes the toolkit away.
  static void install(Toolkit* toolkit);

  // Makes the objects of the bundle's interface file of that name (without ".ui") and connects
  // the outlets. Null when there is no such file or it cannot be read; the outlets are then as
  // they were.
  virtual std::shared_ptr<LoadedInterface> loadInterface(const Bundle& bundle,
                                                         const std::string& name,
                                                         InterfaceBindings bindings) = 0;

  // Shows the window above everything else of the program and handles events until stopModal.
  // False when the run was not stopped but the program is ending, or when the window cannot be
  // shown: the caller then shows nothing more and returns.
  virtual bool runModalForWindow(Window& window) = 0;

  // Ends the innermost run, the one that was started last and has not returned; nothing when there
  // is none. Stopping a run twice is stopping it once: the runs around it go on.
  virtual void stopModal() = 0;
};

}  // namespace tavrin
