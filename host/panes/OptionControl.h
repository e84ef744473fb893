#pragma once

#include <functional>

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>

#include "host/printer/PPDMarks.h"

// The controls for one option of a PPD, after the kind that the PPD gives it. Each shows what is
// marked, marks what the person picks, and follows marks that change elsewhere.

namespace tavrin {

// A pop-up of the choices; empty while none is marked.
class PickOneControl : public QComboBox {
  Q_OBJECT

 public:
  PickOneControl(PPDMarks& marks, const ppd_option_t& option, QWidget* parent);

 private:
  void fill();
  void refresh();

  PPDMarks& marks;
  const ppd_option_t& option;
};

// A check box for an option that is "True" or "False"; between both while none is marked.
class BooleanControl : public QCheckBox {
  Q_OBJECT

 public:
  BooleanControl(PPDMarks& marks, const ppd_option_t& option, QWidget* parent);

 private:
  void refresh();

  PPDMarks& marks;
  const ppd_option_t& option;
};

// A list of which any number can be ticked.
class PickManyControl : public QListWidget {
  Q_OBJECT

 public:
  PickManyControl(PPDMarks& marks, const ppd_option_t& option, QWidget* parent);

 private:
  void fill();
  void refresh();

  PPDMarks& marks;
  const ppd_option_t& option;
};

// Whether the option is one that a check box can show.
bool isBoolean(const ppd_option_t& option);

// The control that fits the option; the parent owns it.
QWidget* makeOptionControl(PPDMarks& marks, const ppd_option_t& option, QWidget* parent);

}  // namespace tavrin
