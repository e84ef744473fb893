#pragma once

#include <string>

#include "platform/text/OptionalString.h"
#include "platform/toolkit/View.h"

// What a user works and reads in a panel: the kinds of control, in one file because they are small
// and a toolkit implements all of them.

namespace tavrin {

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
  // Adds an item at the end, even if another has the same title. The first item of an empty pop-up
  // becomes the selected one. The value is for the caller to ask back with itemValue.
  virtual void addItem(const std::string& title, const std::string& value) = 0;

  virtual int numberOfItems() const = 0;
  // Absent if there is no such item.
  virtual OptString itemTitle(int index) const = 0;
  virtual OptString itemValue(int index) const = 0;

  // -1 if no item is selected.
  virtual int indexOfSelectedItem() const = 0;
  // Absent if no item is selected.
  OptString titleOfSelectedItem() const { return itemTitle(indexOfSelectedItem()); }
  // Selects the first item with that title; an absent title, or one that no item has, leaves
  // nothing selected.
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

// A knob on a scale of whole numbers; the interface file sets the range.
class Slider : public Control {
 public:
  virtual int intValue() const = 0;
  // A value outside the range becomes the nearest one within it.
  virtual void setIntValue(int value) = 0;
};

// Grey is the toolkit's colour for the text of what cannot be used now, black for all other text.
enum class TextColor { grey, black };

// A text that the user can only read.
class Label : public View {
 public:
  // Shown as it is: no markup, no mnemonic; line breaks break lines in a label of several lines.
  virtual void setStringValue(const std::string& text) = 0;
  virtual void setTextColor(TextColor color) = 0;
};

}  // namespace tavrin
