#include "host/dialog/GeneralArea.h"

#include <algorithm>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>

#include "host/dialog/PrinterPopUp.h"
#include "host/job/JobRequest.h"
#include "host/job/PageRanges.h"
#include "host/panes/OptionControl.h"
#include "host/panes/Widgets.h"
#include "host/printer/MarkedOptions.h"
#include "platform/qt/ShownText.h"

namespace tavrin {

GeneralArea::GeneralArea(QWidget* parent)
    : QWidget(parent),
      form(makeForm(this)),
      printerPopUp(makeChild<PrinterPopUp>(this)),
      copiesBox(makeChild<QSpinBox>(this)),
      allPages(makeChild<QRadioButton>(tr("&All"), this)),
      somePages(makeChild<QRadioButton>(tr("&Range:"), this)),
      rangeEdit(makeChild<QLineEdit>(this)),
      rangeProblem(makeTextLabel(this)) {
  addRow(*form, tr("Prin&ter:"), *printerPopUp);
  addCopiesRow();
  addPagesRow();
}

void GeneralArea::addCopiesRow() {
  copiesBox->setObjectName("copies");
  copiesBox->setAccessibleName(tr("Copies"));
  copiesBox->setRange(1, kMostCopies);
  connect(copiesBox, &QSpinBox::valueChanged, this, [this] { copiesByHand = true; });
  auto* row = makeChild<QWidget>(this);
  auto* line = makeChild<QHBoxLayout>(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(copiesBox);
  line->addStretch();
  addRow(*form, tr("C&opies:"), *row)->setBuddy(copiesBox);
}

void GeneralArea::addPagesRow() {
  rangeEdit->setObjectName("pageRange");
  rangeEdit->setAccessibleName(tr("Page range"));
  rangeEdit->setPlaceholderText(tr("for example 1-3,5"));
  rangeProblem->setObjectName("pageRangeProblem");
  rangeProblem->hide();
  allPages->setChecked(true);
  auto* row = makeChild<QWidget>(this);
  auto* line = makeChild<QHBoxLayout>(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(allPages);
  line->addWidget(somePages);
  line->addWidget(rangeEdit, 1);
  addRow(*form, tr("Pages:"), *row);
  form->addRow(nullptr, rangeProblem);
  connect(rangeEdit, &QLineEdit::textEdited, this, [this] {
    pagesByHand = true;
    somePages->setChecked(true);
  });
  for (QRadioButton* button : {allPages, somePages})
    connect(button, &QRadioButton::clicked, this, [this] { pagesByHand = true; });
  connect(rangeEdit, &QLineEdit::editingFinished, this, &GeneralArea::showRangeProblem);
  connect(somePages, &QRadioButton::toggled, this, &GeneralArea::showRangeProblem);
  connect(somePages, &QRadioButton::clicked, rangeEdit, [this] { rangeEdit->setFocus(); });
}

void GeneralArea::suggestCopies(int copies) {
  if (copiesByHand) return;
  const QSignalBlocker quiet(copiesBox);
  copiesBox->setValue(copies);
}

int GeneralArea::copies() const { return copiesBox->value(); }

void GeneralArea::suggestPageRanges(const QString& ranges) {
  if (pagesByHand) return;
  rangeEdit->setText(ranges);
  (ranges.isEmpty() ? allPages : somePages)->setChecked(true);
  showRangeProblem();
}

Result<std::string> GeneralArea::pageRanges() const {
  if (allPages->isChecked()) return std::string();
  return checkedPageRanges(rangeEdit->text());
}

void GeneralArea::focusPageRanges() {
  showRangeProblem();
  rangeEdit->setFocus();
  rangeEdit->selectAll();
}

void GeneralArea::showRangeProblem() {
  const Result<std::string> ranges = pageRanges();
  rangeProblem->setText(ranges ? QString() : QString::fromStdString(ranges.reason()));
  rangeProblem->setVisible(!ranges);
}

void GeneralArea::setMarks(PPDMarks* theMarks) {
  if (papers) form->removeRow(papers);
  papers = nullptr;
  marks = theMarks;
  const ppd_option_t* option = marks ? marks->option(kPaperSizeKeyword) : nullptr;
  if (!option) return;
  papers = makeChild<PickOneControl>(*marks, *option, this);
  addRow(*form, tr("Paper si&ze:"), *papers);
}

Pane::Lines GeneralArea::summary() const {
  Pane::Lines lines{{tr("Printer"), printerPopUp->currentText()}};
  lines.push_back({tr("Copies"), locale().toString(copies())});
  const Result<std::string> ranges = pageRanges();
  const bool all = ranges && ranges->empty();
  lines.emplace_back(tr("Pages"), all ? tr("All") : rangeEdit->text());
  if (const OptString paper = marks ? marks->choiceText(kPaperSizeKeyword) : std::nullopt)
    lines.emplace_back(tr("Paper size"), shownLine(*paper));
  return lines;
}

}  // namespace tavrin
