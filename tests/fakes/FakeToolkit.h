#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/toolkit/Toolkit.h"

// A toolkit without a screen: loading an interface makes one fake object for every outlet that the
// owner offers, under the outlet's name. A test looks at the objects and works them as a user
// would.

namespace tavrin {

template <class Base>
class FakeViewOf : public Base {
 public:
  Rect frame() const override { return place; }
  void setFrame(const Rect& frame) override { place = frame; }
  bool isHidden() const override { return hidden; }
  void setHidden(bool value) override { hidden = value; }
  void setNeedsDisplay() override { ++redisplays; }

  Rect place;
  bool hidden = false;
  int redisplays = 0;
};

template <class Base>
class FakeControlOf : public FakeViewOf<Base> {
 public:
  bool isEnabled() const override { return enabled; }
  void setEnabled(bool value) override { enabled = value; }

  bool enabled = true;
};

class FakePopUpButton final : public FakeControlOf<PopUpButton> {
 public:
  void removeAllItems() override;
  void addItem(const std::string& title, const std::string& value) override;
  int numberOfItems() const override { return static_cast<int>(items.size()); }
  OptString itemTitle(int index) const override;
  OptString itemValue(int index) const override;
  int indexOfSelectedItem() const override { return selected; }
  void selectItemWithTitle(const OptString& title) override;

  struct Item {
    std::string title, value;
  };
  std::vector<Item> items;
  int selected = -1;
  int selections = 0;  // calls of selectItemWithTitle
};

class FakeButton final : public FakeControlOf<Button> {
 public:
  int intValue() const override { return state; }
  void setState(int value) override { state = value; }
  void setTitle(const std::string& text) override { title = text; }

  int state = 0;
  std::string title;
};

class FakeSlider final : public FakeControlOf<Slider> {
 public:
  int intValue() const override { return value; }
  void setIntValue(int number) override { value = std::clamp(number, min, max); }

  int value = 0;
  int min = 0;  // the range of the panel's slider
  int max = 10;
};

class FakeLabel final : public FakeViewOf<Label> {
 public:
  void setStringValue(const std::string& value) override { text = value; }
  void setTextColor(TextColor value) override { color = value; }

  std::string text;
  std::optional<TextColor> color;  // absent until it is set
};

class FakeWindow final : public Window {
 public:
  void setTitle(const std::string& text) override { title = text; }
  void center() override { ++centred; }
  void display() override { open = true; }
  void close() override;

  std::string title;
  bool open = false;
  int centred = 0;
  std::function<void()> willClose;
};

class FakeInterface final : public LoadedInterface {
 public:
  explicit FakeInterface(InterfaceBindings offered);
  void detach() override;
  std::vector<std::string> problems() const override { return {}; }

  FakePopUpButton& popUp(const std::string& name) { return *popUps.at(name); }
  FakeButton& button(const std::string& name) { return *buttons.at(name); }
  FakeSlider& slider(const std::string& name) { return *sliders.at(name); }
  FakeLabel& label(const std::string& name) { return *labels.at(name); }
  FakeWindow& window(const std::string& name) { return *windows.at(name); }
  FakeViewOf<View>& view(const std::string& name) { return *views.at(name); }

  // What the user does: change the control, then run its action.
  void choose(const std::string& control, int index, const std::string& action);
  void click(const std::string& control, const std::string& action);  // the state flips
  void pick(const std::string& control, const std::string& action);   // a radio button: goes on
  void slide(const std::string& control, int value, const std::string& action);
  void press(const std::string& control, const std::string& action);  // a push button: stays off

  // The name of a window of this interface; absent for any other window.
  OptString nameOf(const Window& window) const;

  InterfaceBindings bindings;
  bool detached = false;
  std::map<std::string, std::unique_ptr<FakePopUpButton>> popUps;
  std::map<std::string, std::unique_ptr<FakeButton>> buttons;
  std::map<std::string, std::unique_ptr<FakeSlider>> sliders;
  std::map<std::string, std::unique_ptr<FakeLabel>> labels;
  std::map<std::string, std::unique_ptr<FakeWindow>> windows;
  std::map<std::string, std::unique_ptr<FakeViewOf<View>>> views;

 private:
  void make(const std::string& name, InterfaceBindings::AnyOutlet outlet);
  template <class Sender>
  void run(const std::string& action, Sender& sender);
};

// Installs itself for its life.
class FakeToolkit final : public Toolkit {
 public:
  FakeToolkit() { install(this); }
  ~FakeToolkit() override { install(nullptr); }

  std::shared_ptr<LoadedInterface> loadInterface(const Bundle& bundle, const std::string& name,
                                                 InterfaceBindings bindings) override;
  // Runs the next answer. A window that comes up with no answer left, or whose answer stops
  // nothing, stands for a program that ends; a window of no interface cannot be shown.
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
  // Called on each new interface before its owner goes on: the file's initial state.
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
