#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Window.h"

// Controls and windows that only remember what they were told.

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

}  // namespace tavrin
