#pragma once

#include <QLabel>

#include "platform/qt/QtView.h"

namespace tavrin {

// A label. The control that it names (its buddy in the interface file) takes its accessible name
// from it; a label that names a button is clicked as that button.
class QtLabel : public QtViewOf<Label, QLabel> {
 public:
  explicit QtLabel(QLabel& label);

  void setStringValue(const std::string& text) override;
  void setTextColor(TextColor color) override;

 private:
  void nameBuddy();
};

}  // namespace tavrin
