#include "host/panes/LayoutPane.h"

#include <algorithm>

#include <QComboBox>
#include <QFormLayout>

#include "host/panes/OptionControl.h"
#include "host/panes/Widgets.h"
#include "host/printer/MarkedOptions.h"
#include "platform/qt/ShownText.h"

namespace tavrin {

namespace {

constexpr int kTwoSidedRow = 1;

}  // namespace

LayoutPane::LayoutPane(QWidget* parent)
    : Pane(tr("Layout"), parent), form(makeForm(this)), pagesPopUp(makeChild<QComboBox>(this)) {
  for (const int pages : kPagesPerSheet) pagesPopUp->addItem(locale().toString(pages), pages);
  pagesPopUp->setObjectName("pagesPerSheet");
  addRow(*form, tr("Pages per &sheet:"), *pagesPopUp);
  connect(pagesPopUp, &QComboBox::currentIndexChanged, this,
          [this] { emit pagesPerSheetChanged(pagesPerSheet()); });
  connect(pagesPopUp, &QComboBox::activated, this, [this] { pickedByHand = true; });
}

int LayoutPane::pagesPerSheet() const { return pagesPopUp->currentData().toInt(); }

bool LayoutPane::suggestPagesPerSheet(int pages) {
  const int index = pagesPopUp->findData(pages);
  if (index < 0) return false;
  if (!pickedByHand) pagesPopUp->setCurrentIndex(index);
  return true;
}

void LayoutPane::setMarks(PPDMarks* theMarks) {
  if (form->rowCount() > kTwoSidedRow) form->removeRow(kTwoSidedRow);
  marks = theMarks;
  const ppd_option_t* option = marks ? twoSidedOption(marks->ppd()) : nullptr;
  twoSided = option ? option->keyword : "";
  if (option) addRow(*form, tr("&Two-sided:"), *makeChild<PickOneControl>(*marks, *option, this));
}

Pane::Lines LayoutPane::summary() const {
  Lines lines{{tr("Pages per sheet"), pagesPopUp->currentText()}};
  if (twoSided.empty()) return lines;
  lines.emplace_back(tr("Two-sided"), shownLine(marks->choiceText(twoSided).value_or("")));
  return lines;
}

}  // namespace tavrin
