#pragma once

#include <QWidget>

#include "host/panes/Pane.h"
#include "host/printer/PPDMarks.h"
#include "platform/text/Result.h"

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

  // What the program or the printer would have. Both stay without effect once the person has
  // changed the field. A number of copies that cannot be becomes the nearest that can; the empty
  // text stands for all pages.
  void suggestCopies(int copies);
  void suggestPageRanges(const QString& ranges);
  int copies() const;
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
  bool copiesByHand = false;
  bool pagesByHand = false;
  PPDMarks* marks = nullptr;
  QWidget* papers = nullptr;
};

}  // namespace tavrin
