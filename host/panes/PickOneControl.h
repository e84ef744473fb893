#pragma once

#include <QComboBox>

#include "host/printer/PPDMarks.h"

namespace tavrin {

// A pop-up of the choices of a PPD option; empty while none is marked. It marks what the person
// picks, and follows marks that change elsewhere. A choice that reads like one before it has its
// keyword beside it.
class PickOneControl : public QComboBox {
  Q_OBJECT

 public:
  // The marks and the option outlive the control.
  PickOneControl(PPDMarks& marks, const ppd_option_t& option, QWidget* parent);

 private:
  void fill();
  void refresh();

  PPDMarks& marks;
  const ppd_option_t& option;
};

}  // namespace tavrin
