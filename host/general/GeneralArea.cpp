#include "host/general/GeneralArea.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>

#include "host/general/PrinterPopUp.h"
#include "host/general/PrinterStateLine.h"
#include "host/general/WrappedLabel.h"
#include "host/panes/PickOneControl.h"
#include "host/panes/Widgets.h"
#include "host/printer/MarkedOptions.h"
#include "host/task/PrintTask.h"
#include "platform/qt/base/ShownText.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

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
      allPages(makeChild<QRadioButton>(tr("&All"), this)),
      somePages(makeChild<QRadioButton>(tr("&Range:"), this)),
      rangeEdit(makeChild<QLineEdit>(this)),
      rangeProblem(makeChild<WrappedLabel>(this)) {
  addPrinterRows();
  addCopiesRow();
  addPagesRow();
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
  line->addStretch();
  addRow(*form, tr("C&opies:"), *row)->setBuddy(copiesBox);
}

void GeneralArea::addPagesRow() {
  rangeEdit->setObjectName("pageRange");
  rangeEdit->setAccessibleName(tr("Page range"));
  rangeEdit->setPlaceholderText(tr("for example 1-3,5"));
  rangeProblem->setObjectName("pageRangeProblem");
  auto* row = makeChild<QWidget>(this);
  QHBoxLayout* line = makeLine(row);
  line->addWidget(allPages);
  line->addWidget(somePages);
  line->addWidget(rangeEdit, 1);
  addRow(*form, tr("Pages:"), *row);
  form->addRow(nullptr, rangeProblem);
}

void GeneralArea::connectPages() {
  connect(rangeEdit, &QLineEdit::textEdited, this, [this] {
    somePages->setChecked(true);
    takePages();
    // A range that is being typed is not wrong yet; but one that was wrong may be right now.
    if (!rangeProblem->isHidden()) showRangeProblem();
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
  showRangeProblem();
}

void GeneralArea::focusPageRange() {
  showRangeProblem();
  rangeEdit->setFocus();
  rangeEdit->selectAll();
}

void GeneralArea::showRangeProblem() {
  const Result<std::string> ranges = task.fields().pageRanges();
  rangeProblem->setText(ranges ? QString() : QString::fromStdString(ranges.reason()));
  rangeProblem->setVisible(!ranges);
}

void GeneralArea::setMarks(PPDMarks* theMarks) {
  if (papers) form->removeRow(papers);
  papers = nullptr;
  marks = theMarks;
  const ppd_option_t* option = marks ? marks->option(kPageSizeKey) : nullptr;
  if (!option) return;
  papers = makeChild<PickOneControl>(*marks, *option, this);
  addRow(*form, tr("Paper Si&ze:"), *papers);
}

Pane::Lines GeneralArea::summary() const {
  const JobFields& fields = task.fields();
  const Result<std::string> ranges = fields.pageRanges();
  const bool all = ranges && ranges->empty();
  Pane::Lines lines{{tr("Printer"), shownLine(task.printerName())},
                    {tr("Copies"), locale().toString(fields.copies())},
                    {tr("Pages"), all ? tr("All") : shownLine(fields.pages().range.toStdString())}};
  if (const OptString paper = marks ? marks->choiceText(kPageSizeKey) : std::nullopt)
    lines.emplace_back(tr("Paper Size"), shownLine(*paper));
  return lines;
}

}  // namespace tavrin
