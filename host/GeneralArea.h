#pragma once

#include <QWidget>

#include "host/PPDMarks.h"
#include "host/Pane.h"
#include "platform/Result.h"

class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace tavrin {

class PrinterPopUp;

// What every job has, above the panes: the printer, copies, page range and paper size. Copies and
// range stay when another printer is chosen.
class GeneralArea : public QWidget {
  Q_OBJECT

 public:
  explicit GeneralArea(QWidget* parent);

  PrinterPopUp& printers() { return *printerPopUp; }

  // Between 1 and 9999; another number becomes the nearest of them.
  void setCopies(int copies);
  int copies() const;

  // The empty text stands for all pages.
  void setPageRanges(const QString& ranges);
  // What the person wrote, in the print system's form ("1-3,5"), empty for all pages; or why it
  // means no pages.
  Result<std::string> pageRanges() const;
  // Takes the person to the page range, to put it right.
  void focusPageRanges();

  // Takes the printer's paper sizes; null for no printer. The marks outlive their use here.
  void setMarks(PPDMarks* marks);

  Pane::Lines summary() const;

 private:
  void addCopiesRow();
  void addPagesRow();
  void showRangeProblem();

  QFormLayout* form;
  PrinterPopUp* printerPopUp;
  QSpinBox* copiesBox;
  QRadioButton* allPages;
  QRadioButton* somePages;
  QLineEdit* rangeEdit;
  QLabel* rangeProblem;
  PPDMarks* marks = nullptr;
  QWidget* papers = nullptr;
};

}  // namespace tavrin
