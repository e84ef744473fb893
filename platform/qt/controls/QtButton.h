#pragma once

#include <QAbstractButton>

#include "platform/qt/controls/QtControl.h"
#include "platform/toolkit/Controls.h"

namespace tavrin {

// A check box, a radio button, a disclosure triangle or a push button.
class QtButton : public QtControlOf<Button, QAbstractButton> {
 public:
  explicit QtButton(QAbstractButton& button);

  int intValue() const override;
  void setState(int state) override;
  void setTitle(const std::string& title) override;
};

}  // namespace tavrin
