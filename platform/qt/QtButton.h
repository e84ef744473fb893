#pragma once

#include <QAbstractButton>

#include "platform/qt/QtView.h"

namespace tavrin {

// A check box, a radio button, a push button, or, on a tool button that can be checked, a
// disclosure triangle: its arrow points down when it is on and in reading direction when it is off.
class QtButton : public QtControlOf<Button, QAbstractButton> {
 public:
  explicit QtButton(QAbstractButton& button);

  int intValue() const override;
  void setState(int state) override;
  void setTitle(const std::string& title) override;

 private:
  void pointArrow();
};

}  // namespace tavrin
