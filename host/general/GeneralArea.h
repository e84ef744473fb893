#pragma once

#include <QWidget>
#include <cups/ppd.h>

#include "host/panes/Pane.h"

class QCheckBox;
class QFormLayout;
class QSpinBox;

namespace tavrin {

class PageRows;
class PaperSizeBoxes;
class PPDMarks;
class PrintTask;
class PrinterPopUp;

// What every job has, above the panes: the printer, copies, which pages, and paper size.
class GeneralArea : public QWidget {
  Q_OBJECT

 public:
  // Shows the task's fields and passes the person's changes on to them. The task outlives the area.
  GeneralArea(PrintTask& task, QWidget* parent);

  // Takes the person to the number of copies: the first control on which Return prints.
  void focusCopies();
  // Takes the person to the page range, to put it right.
  void focusPageRange();

  // Takes the printer's paper sizes; null for no printer. The marks outlive their use here.
  void setMarks(PPDMarks* marks);

  Pane::Lines summary() const;

 private:
  void addPrinterRows();
  void addCopiesRow();
  void refresh();
  void showWhatMatters();
  void leaveToPrinter();
  void addPaperRows(const ppd_option_t& option);
  void showOwnPaper();

  PrintTask& task;
  QFormLayout* form;
  PrinterPopUp* printerPopUp;
  QSpinBox* copiesBox;
  QCheckBox* collate;
  PageRows* pages = nullptr;
  PPDMarks* marks = nullptr;
  QWidget* papers = nullptr;
  PaperSizeBoxes* ownPaper = nullptr;  // null where the printer takes no such paper
};

}  // namespace tavrin
