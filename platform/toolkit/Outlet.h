#pragma once

#include "platform/toolkit/Controls.h"
#include "platform/toolkit/View.h"
#include "platform/toolkit/Window.h"

namespace tavrin {

// The object that stands in for one of its kind that is not there: it ignores commands and answers
// 0, false or absent.
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

// A controller's reference to one object of its interface file. Never null to its users: until the
// file connects it, it refers to the null object.
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

}  // namespace tavrin
