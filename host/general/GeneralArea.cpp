#include "host/general/GeneralArea.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

#include "host/fields/FieldSwitch.h"
#include "host/general/PageRows.h"
#include "host/general/PaperSizeBoxes.h"
#include "host/general/PrinterPopUp.h"
#include "host/general/PrinterStateLine.h"
#include "host/panes/PickOneControl.h"
#include "host/panes/Widgets.h"
#include "host/printer/JobSettings.h"
#include "host/request/SettingWords.h"
#include "host/task/PrintTask.h"
#include "platform/qt/base/ShownText.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {

GeneralArea::GeneralArea(PrintTask& theTask, QWidget* parent)
    : QWidget(parent),
      task(theTask),
      form(makeForm(this)),
      printerPopUp(makeChild<PrinterPopUp>(task, this)),
      copiesBox(makeChild<QSpinBox>(this)),
      collate(makeChild<FieldSwitch>(task.fields(), kCollateOption, tr("&Collate"), this)) {
  addPrinterRows();
  addCopiesRow();
  pages = makeChild<PageRows>(task.fields(), *form);
  refresh();
  connect(copiesBox, &QSpinBox::valueChanged, &task.fields(), &JobFields::setCopies);
  connect(&task.fields(), &JobFields::suggestionTaken, this, &GeneralArea::refresh);
  connect(&task.fields(), &JobFields::changed, this, &GeneralArea::showWhatMatters);
}

void GeneralArea::addPrinterRows() {
  addRow(*form, tr("Prin&ter:"), *printerPopUp);
  form->addRow(nullptr, makeChild<PrinterStateLine>(task, this));
}

void GeneralArea::addCopiesRow() {
  copiesBox->setObjectName("copies");
  copiesBox->setAccessibleName(tr("Copies"));
  copiesBox->setRange(1, kMostCopies);
  auto* row = makeChild<QWidget>(this);
  auto* line = makeChild<QHBoxLayout>(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(copiesBox);
  line->addWidget(collate);
  line->addStretch();
  addRow(*form, tr("C&opies:"), *row)->setBuddy(copiesBox);
}

// Shows the fields as they were suggested.
void GeneralArea::refresh() {
  const QSignalBlocker quiet(copiesBox);
  copiesBox->setValue(task.fields().copies());
  showWhatMatters();
}

// Copies can be collated where there are several.
void GeneralArea::showWhatMatters() { collate->setVisible(task.fields().matters(kCollateOption)); }

void GeneralArea::focusCopies() {
  copiesBox->setFocus();
  copiesBox->selectAll();
}

void GeneralArea::focusPageRange() { pages->focusRange(); }

void GeneralArea::setMarks(PPDMarks* theMarks) {
  for (QWidget* row : {papers, static_cast<QWidget*>(ownPaper)})
    if (row) form->removeRow(row);
  papers = nullptr;
  ownPaper = nullptr;
  marks = theMarks;
  leaveToPrinter();
  if (const ppd_option_t* option = marks ? marks->option(kPageSizeKey) : nullptr)
    addPaperRows(*option);
}

void GeneralArea::addPaperRows(const ppd_option_t& option) {
  auto* popUp = makeChild<PickOneControl>(*marks, option, this);
  papers = popUp;
  addRow(*form, tr("Paper Si&ze:"), *papers);
  if (!takesCustomPaper(marks->ppd())) return;
  popUp->offerCustom();
  ownPaper = makeChild<PaperSizeBoxes>(*marks, this);
  addRow(*form, tr("Custo&m Size:"), *ownPaper)
      ->setBuddy(ownPaper->findChild<QWidget*>("paperWidth"));
  connect(popUp, &PickOneControl::customWanted, this, [this] { ownPaper->begin(); });
  connect(marks, &PPDMarks::refreshed, ownPaper, [this] { showOwnPaper(); });
  showOwnPaper();
}

void GeneralArea::showOwnPaper() {
  form->setRowVisible(ownPaper, markedCustomPaper(marks->ppd()).has_value());
}

// What the printer has itself is among its features.
void GeneralArea::leaveToPrinter() {
  collate->setDisabled(marks && isPrintersOwn(marks->ppd(), "Collate"));
  pages->leaveOrderToPrinter(marks && isPrintersOwn(marks->ppd(), kSheetOrderOption));
}

Pane::Lines GeneralArea::summary() const {
  const JobFields& fields = task.fields();
  const JobFields::Pages& chosen = fields.pages();
  Pane::Lines lines{{tr("Printer"), shownLine(task.printerName())},
                    {tr("Copies"), locale().toString(fields.copies())},
                    {tr("Pages"), chosen.all ? tr("All") : shownLine(chosen.range.toStdString())}};
  if (fields.hasPagesToChoose())
    lines.emplace_back(tr("Odd or Even"), valueText(kPageSetOption, fields.value(kPageSetOption)));
  lines.emplace_back(tr("Reverse Order"),
                     valueText(kSheetOrderOption, fields.value(kSheetOrderOption)));
  if (fields.matters(kCollateOption))
    lines.emplace_back(tr("Collate"), valueText(kCollateOption, fields.value(kCollateOption)));
  if (const OptString paper = marks ? marks->choiceText(kPageSizeKey) : std::nullopt)
    lines.emplace_back(tr("Paper Size"),
                       markedCustomPaper(marks->ppd()) ? ownPaper->summary() : shownLine(*paper));
  return lines;
}

}  // namespace tavrin
