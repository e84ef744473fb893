#pragma once

#include <vector>

#include <QObject>
#include <QTimer>

class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QWidget;

namespace tavrin {

class FieldPopUp;
class FieldSwitch;
class JobFields;

// The rows for which pages: all or a range with what is wrong with it, odd or even, and the order.
class PageRows : public QObject {
  Q_OBJECT

 public:
  // Appends the rows to the form, whose widget owns them. They show the fields and pass the
  // person's changes on to them. The fields outlive the rows.
  PageRows(JobFields& fields, QFormLayout& form);

  // Takes the person to the range, to put it right.
  void focusRange();
  // Whether the printer has a setting of its own for the order.
  void leaveOrderToPrinter(bool printers);

 private:
  QLabel* addLine(const QString& label, const std::vector<QWidget*>& widgets);
  void addRange();
  void addPageSet();
  void connectParts();
  void refresh();
  void take();
  void showProblem();
  void showHint();
  void showChoice();

  JobFields& fields;
  QFormLayout& form;
  QRadioButton* all;
  QRadioButton* some;
  QLineEdit* range;
  QLabel* problem;
  FieldPopUp* pageSet;
  FieldSwitch* order;
  QLabel* pageSetLabel = nullptr;
  QTimer typingRest;  // until a range counts as written
};

}  // namespace tavrin
