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

  // Adds an item for a value of the person's own, where the PPD takes one. Somebody else asks the
  // person for the value then.
  void offerCustom();

 signals:
  void customWanted();

 private:
  QString textOf(const ppd_choice_t& choice) const;
  void take(const QString& keyword);
  void fill();
  void refresh();

  PPDMarks& marks;
  const ppd_option_t& option;
  bool offersCustom = false;
};

}  // namespace tavrin
