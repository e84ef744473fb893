#pragma once

#include <QCheckBox>

#include "host/printer/PPDMarks.h"

namespace tavrin {

// A check box for a PPD option that is "True" or "False"; half-ticked while neither is marked. It
// marks what the person picks, and follows marks that change elsewhere.
class BooleanControl : public QCheckBox {
  Q_OBJECT

 public:
  // The marks and the option outlive the control.
  BooleanControl(PPDMarks& marks, const ppd_option_t& option, QWidget* parent);

 private:
  void refresh();

  PPDMarks& marks;
  const ppd_option_t& option;
};

}  // namespace tavrin
