#pragma once

#include <cups/ppd.h>

#include "platform/toolkit/Toolkit.h"
#include "ppd/TextEncoding.h"

// Writing a PPD's texts on controls. An absent text leaves the control as the interface file has
// it.

namespace tavrin {

// The text of an option for people; absent for null.
inline OptString optionText(const ppd_option_t* option) {
  return option != nullptr ? decodeUTF8(option->text) : std::nullopt;
}

inline void setText(Label& label, const OptString& text) {
  if (text) label.setStringValue(*text);
}

// For a label beside a pop-up or slider.
inline void setTextWithColon(Label& label, const OptString& text) {
  if (text) label.setStringValue(*text + ":");
}

inline void setTitle(Button& button, const OptString& text) {
  if (text) button.setTitle(*text);
}

}  // namespace tavrin
