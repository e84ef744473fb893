#include "host/general/GeneralArea.h"

#include <chrono>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>

#include "host/fields/FieldPopUp.h"
#include "host/fields/FieldSwitch.h"
#include "host/fields/SettingTexts.h"
#include "host/general/PaperSizeBoxes.h"
#include "host/general/PrinterPopUp.h"
#include "host/general/PrinterStateLine.h"
#include "host/general/WrappedLabel.h"
#include "host/panes/PickOneControl.h"
#include "host/panes/Widgets.h"
#include "host/printer/JobSettings.h"
#include "host/task/PrintTask.h"
#include "platform/qt/base/ShownText.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

// Longer than the pauses between two keys, shorter than the way to the next field.
constexpr std::chrono::milliseconds kTypingRest(800);

// A row of the form that holds several widgets.
QHBoxLayout* makeLine(QWidget* row) {
  auto* line = makeChild<QHBoxLayout>(row);
  line->setContentsMargins(0, 0, 0, 0);
  return line;
}

}  // namespace

GeneralArea::GeneralArea(PrintTask& theTask, QWidget* parent)
    : QWidget(parent),
      task(theTask),
      form(makeForm(this)),
      printerPopUp(makeChild<PrinterPopUp>(task, this)),
      copiesBox(makeChild<QSpinBox>(this)),
      collate(makeChild<FieldSwitch>(task.fields(), kCollateOption, tr("&Collate"), this)),
      allPages(makeChild<QRadioButton>(tr("&All"), this)),
      somePages(makeChild<QRadioButton>(tr("&Range:"), this)),
      rangeEdit(makeChild<QLineEdit>(this)),
      rangeProblem(makeChild<WrappedLabel>(this)) {
  addPrinterRows();
  addCopiesRow();
  addPagesRow();
  addPageSetRow();
  refresh();
  connectPages();
  connect(copiesBox, &QSpinBox::valueChanged, &task.fields(), &JobFields::setCopies);
  connect(&task.fields(), &JobFields::suggestionTaken, this, &GeneralArea::refresh);
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
  QHBoxLayout* line = makeLine(row);
  line->addWidget(copiesBox);
  line->addWidget(collate);
  line->addStretch();
  addRow(*form, tr("C&opies:"), *row)->setBuddy(copiesBox);
}

void GeneralArea::addPagesRow() {
  rangeEdit->setObjectName("pageRange");
  rangeEdit->setAccessibleName(tr("Page range"));
  rangeProblem->setObjectName("pageRangeProblem");
  auto* row = makeChild<QWidget>(this);
  QHBoxLayout* line = makeLine(row);
  line->addWidget(allPages);
  line->addWidget(somePages);
  line->addWidget(rangeEdit, 1);
  addRow(*form, tr("Pages:"), *row);
  form->addRow(nullptr, rangeProblem);
}

void GeneralArea::addPageSetRow() {
  const QString name = tr("Odd or Even");
  auto* row = makeChild<QWidget>(this);
  auto* pageSet = makeChild<FieldPopUp>(task.fields(), kPageSetOption, name, row);
  QHBoxLayout* line = makeLine(row);
  line->addWidget(pageSet, 1);
  line->addWidget(
      makeChild<FieldSwitch>(task.fields(), kSheetOrderOption, tr("&Last page first"), row));
  addRow(*form, tr("O&dd or Even:"), *row)->setBuddy(pageSet);
  connect(pageSet, &QComboBox::activated, this, &GeneralArea::showRangeProblem);
}

void GeneralArea::connectPages() {
  typingRest.setSingleShot(true);
  typingRest.setInterval(kTypingRest);
  connect(&typingRest, &QTimer::timeout, this, &GeneralArea::showRangeProblem);
  connect(&task.fields(), &JobFields::changed, this, &GeneralArea::showWhatMatters);
  connect(rangeEdit, &QLineEdit::textEdited, this, [this] {
    somePages->setChecked(true);
    takePages();
    // A range that is being typed is not wrong yet; but one that was wrong may be right now.
    rangeProblem->isHidden() ? typingRest.start() : showRangeProblem();
  });
  for (QRadioButton* button : {allPages, somePages})
    connect(button, &QRadioButton::clicked, this, [this] {
      takePages();
      showRangeProblem();
    });
  connect(somePages, &QRadioButton::clicked, rangeEdit, [this] { rangeEdit->setFocus(); });
  connect(rangeEdit, &QLineEdit::editingFinished, this, &GeneralArea::showRangeProblem);
}

void GeneralArea::takePages() {
  task.fields().setPages({allPages->isChecked(), rangeEdit->text()});
}

// Shows the fields as they were suggested.
void GeneralArea::refresh() {
  const QSignalBlocker quiet(copiesBox);
  copiesBox->setValue(task.fields().copies());
  const JobFields::Pages& pages = task.fields().pages();
  const QString range = shownLine(pages.range.toStdString());
  if (rangeEdit->text() != range) rangeEdit->setText(range);
  (pages.all ? allPages : somePages)->setChecked(true);
  showRangeHint();
  showRangeProblem();
  showWhatMatters();
}

// Copies can be collated where there are several.
void GeneralArea::showWhatMatters() { collate->setVisible(task.fields().matters(kCollateOption)); }

void GeneralArea::showRangeHint() {
  const int pages = task.fields().documentPages();
  rangeEdit->setPlaceholderText(pages > 1   ? tr("1-%1", "pages").arg(pages)
                                : pages > 0 ? QString::number(pages)
                                            : tr("for example 1-3,5"));
}

void GeneralArea::focusPageRange() {
  showRangeProblem();
  rangeEdit->setFocus();
  rangeEdit->selectAll();
}

void GeneralArea::showRangeProblem() {
  typingRest.stop();
  const QString problem = task.fields().pagesProblem();
  rangeProblem->setText(problem);
  rangeProblem->setVisible(!problem.isEmpty());
}

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
  addRow(*form, tr("E&xact Size:"), *ownPaper)
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
  findChild<FieldSwitch*>(kSheetOrderOption)
      ->setDisabled(marks && isPrintersOwn(marks->ppd(), kSheetOrderOption));
}

Pane::Lines GeneralArea::summary() const {
  const JobFields& fields = task.fields();
  const Result<std::string> ranges = fields.pageRanges();
  const bool all = ranges && ranges->empty();
  Pane::Lines lines{{tr("Printer"), shownLine(task.printerName())},
                    {tr("Copies"), locale().toString(fields.copies())},
                    {tr("Pages"), all ? tr("All") : shownLine(fields.pages().range.toStdString())}};
  for (const auto& [name, option] :
       {std::pair{tr("Odd or Even"), kPageSetOption}, std::pair{tr("Order"), kSheetOrderOption}})
    lines.emplace_back(name, valueText(option, fields.value(option)));
  if (fields.matters(kCollateOption))
    lines.emplace_back(tr("Collate"), valueText(kCollateOption, fields.value(kCollateOption)));
  if (const OptString paper = marks ? marks->choiceText(kPageSizeKey) : std::nullopt)
    lines.emplace_back(tr("Paper Size"),
                       markedCustomPaper(marks->ppd()) ? ownPaper->summary() : shownLine(*paper));
  return lines;
}

}  // namespace tavrin
