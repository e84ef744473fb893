#pragma once

#include <QLabel>

#include "platform/qt/controls/QtLabelOf.h"

namespace tavrin {

// A label. The control that it names (its buddy in the interface file) takes its accessible name
// from it; a click on a label that names a button clicks the button. Where the interface file has
// the label's width ignored, a text that is too long is cut, and the tool tip has all of it.
class QtLabel : public QtLabelOf<QLabel> {
 public:
  explicit QtLabel(QLabel& label);

  void setStringValue(const std::string& text) override;

 private:
  void nameBuddy();
};

}  // namespace tavrin
