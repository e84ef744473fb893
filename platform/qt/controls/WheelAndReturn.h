#pragma once

#include <QObject>

namespace tavrin {

// What the wheel and the Return key do to the controls of the whole program. The wheel works only
// the control that has the focus; over any other it scrolls what lies around it, so that nobody
// changes a setting by scrolling past it. Return opens the list of a pop-up that has the focus, or
// presses the button that has it, rather than the window's default button.
class WheelAndReturn : public QObject {
 public:
  // Holds for as long as this object lives; does nothing without an application.
  WheelAndReturn();

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tavrin
