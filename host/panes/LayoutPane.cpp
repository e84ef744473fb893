#include "host/panes/LayoutPane.h"

#include <QComboBox>
#include <QFormLayout>

#include "host/panes/PickOneControl.h"
#include "host/panes/Widgets.h"
#include "host/printer/MarkedOptions.h"
#include "host/task/JobFields.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {
namespace {

constexpr int kTwoSidedRow = 1;

}  // namespace

LayoutPane::LayoutPane(JobFields& theFields, QWidget* parent)
    : Pane(tr("Layout"), parent),
      fields(theFields),
      form(makeForm(this)),
      pagesPopUp(makeChild<QComboBox>(this)) {
  for (const std::string& value : findJobSetting(kPagesPerSheetOption)->values)
    pagesPopUp->addItem(locale().toString(integerValue(value)), integerValue(value));
  pagesPopUp->setObjectName("pagesPerSheet");
  addRow(*form, tr("Pages per &Sheet:"), *pagesPopUp);
  refresh();
  connect(&fields, &JobFields::suggestionTaken, this, &LayoutPane::refresh);
  connect(pagesPopUp, &QComboBox::activated, this,
          [this] { fields.setPagesPerSheet(pagesPopUp->currentData().toInt()); });
}

void LayoutPane::refresh() {
  pagesPopUp->setCurrentIndex(pagesPopUp->findData(fields.pagesPerSheet()));
}

void LayoutPane::setMarks(PPDMarks* theMarks) {
  if (form->rowCount() > kTwoSidedRow) form->removeRow(kTwoSidedRow);
  marks = theMarks;
  const ppd_option_t* option = marks ? twoSidedOption(marks->ppd()) : nullptr;
  twoSided = option ? option->keyword : "";
  if (option) addRow(*form, tr("T&wo-Sided:"), *makeChild<PickOneControl>(*marks, *option, this));
}

Pane::Lines LayoutPane::summary() const {
  Lines lines{{tr("Pages per Sheet"), locale().toString(fields.pagesPerSheet())}};
  if (twoSided.empty()) return lines;
  lines.emplace_back(tr("Two-Sided"), shownLine(marks->choiceText(twoSided).value_or("")));
  return lines;
}

}  // namespace tavrin
