#pragma once

#include <QWidget>

class QComboBox;
class QSpinBox;

namespace tavrin {

class JobFields;

// How large pages come out: a pop-up, and a box for a percentage beside it while that is chosen.
class ScalingControl : public QWidget {
  Q_OBJECT

 public:
  // The fields outlive the control.
  ScalingControl(JobFields& fields, const QString& name, QWidget* parent);

  // In words, with the number.
  QString summary() const;

 private:
  void layOut();
  void connectParts();
  void refresh();
  void offerGiven();
  QString suffix() const;

  JobFields& fields;
  QComboBox* ways;
  QSpinBox* percent;
};

}  // namespace tavrin
