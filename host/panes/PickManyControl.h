#pragma once

#include <QListWidget>

#include "host/printer/PPDMarks.h"

namespace tavrin {

// A list of the choices of a PPD option, of which any number can be ticked. It marks what the
// person picks, and follows marks that change elsewhere.
class PickManyControl : public QListWidget {
  Q_OBJECT

 public:
  // The marks and the option outlive the control.
  PickManyControl(PPDMarks& marks, const ppd_option_t& option, QWidget* parent);

 private:
  void fill();
  void refresh();

  PPDMarks& marks;
  const ppd_option_t& option;
};

}  // namespace tavrin
