#pragma once

#include <string>

#include "platform/qt/controls/QtView.h"
#include "platform/toolkit/Controls.h"

namespace tavrin {

// A text that the user only reads, on a widget of some class.
template <class Widget>
class QtLabelOf : public QtViewOf<Label, Widget> {
 public:
  using QtViewOf<Label, Widget>::QtViewOf;

  // A disabled widget is drawn in the palette's disabled text colour, whatever the palette.
  void setTextColor(TextColor color) override {
    if (!this->widget) return;
    const bool grey = color == TextColor::grey;
    this->widget->setProperty(kTextColor, grey ? QStringLiteral("grey") : QStringLiteral("black"));
    this->widget->setEnabled(!grey);
  }
};

}  // namespace tavrin
