#include "platform/toolkit/Outlet.h"

namespace tavrin {
namespace {

template <class Base>
class NullView : public Base {
 public:
  Rect frame() const override { return {}; }
  void setFrame(const Rect&) override {}
  bool isHidden() const override { return false; }
  void setHidden(bool) override {}
  void setNeedsDisplay() override {}
};

template <class Base>
class NullControl : public NullView<Base> {
 public:
  bool isEnabled() const override { return false; }
  void setEnabled(bool) override {}
};

class NullPopUpButton final : public NullControl<PopUpButton> {
 public:
  void removeAllItems() override {}
  void addItem(const std::string&, const std::string&) override {}
  int numberOfItems() const override { return 0; }
  OptString itemTitle(int) const override { return std::nullopt; }
  OptString itemValue(int) const override { return std::nullopt; }
  int indexOfSelectedItem() const override { return 0; }
  void selectItemWithTitle(const OptString&) override {}
};

class NullButton final : public NullControl<Button> {
 public:
  int intValue() const override { return 0; }
  void setState(int) override {}
  void setTitle(const std::string&) override {}
};

class NullSlider final : public NullControl<Slider> {
 public:
  int intValue() const override { return 0; }
  void setIntValue(int) override {}
};

class NullLabel final : public NullView<Label> {
 public:
  void setStringValue(const std::string&) override {}
  void setTextColor(TextColor) override {}
};

class NullWindow final : public Window {
 public:
  void setTitle(const std::string&) override {}
  void center() override {}
  void display() override {}
  void close() override {}
};

template <class Base, class Null>
Base& theNull() {
  static Null object;
  return object;
}

}  // namespace

template <>
View& nullObject<View>() {
  return theNull<View, NullView<View>>();
}
template <>
PopUpButton& nullObject<PopUpButton>() {
  return theNull<PopUpButton, NullPopUpButton>();
}
template <>
Button& nullObject<Button>() {
  return theNull<Button, NullButton>();
}
template <>
Slider& nullObject<Slider>() {
  return theNull<Slider, NullSlider>();
}
template <>
Label& nullObject<Label>() {
  return theNull<Label, NullLabel>();
}
template <>
Window& nullObject<Window>() {
  return theNull<Window, NullWindow>();
}

}  // namespace tavrin
