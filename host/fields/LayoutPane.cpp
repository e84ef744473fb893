#include "host/fields/LayoutPane.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

#include "host/fields/FieldPopUp.h"
#include "host/fields/FieldSwitch.h"
#include "host/fields/ScalingControl.h"
#include "host/fields/SettingTexts.h"
#include "host/panes/PickOneControl.h"
#include "host/panes/Widgets.h"
#include "host/printer/JobSettings.h"
#include "host/printer/MarkedOptions.h"
#include "host/request/SettingWords.h"
#include "host/task/JobFields.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {

LayoutPane::LayoutPane(JobFields& theFields, QWidget* parent)
    : Pane(tr("Layout"), parent), fields(theFields), form(makeForm(this)) {
  addRows();
  addTwoSidedRow();
  refresh();
  connect(&fields, &JobFields::suggestionTaken, this, [this] { refresh(); });
  connect(&fields, &JobFields::changed, this, [this] { refresh(); });
}

// --- Rows ---

void LayoutPane::addRows() {
  addPopUp(kOrientationOption, tr("Orientation"), tr("Orie&ntation:"));
  addScalingRow();
  addPopUp(kPositionOption, tr("Position"), tr("Pos&ition:"));
  addPopUp(kPagesPerSheetOption, tr("Pages per Sheet"), tr("P&ages per Sheet:"));
  addSwitch(kBookletOption, tr("Booklet"), tr("Boo&klet"));
  addPopUp(kOrderOnSheetOption, tr("Sequence"), tr("Se&quence:"));
  addPopUp(kBorderOption, tr("Border"), tr("&Border:"));
  addSwitch(kTogetherOption, tr("Pictures Together"), tr("Pict&ures Together"));
  connect(findChild<FieldSwitch*>(kBookletOption), &FieldSwitch::clicked, this,
          &LayoutPane::followBooklet);
}

void LayoutPane::addPopUp(const char* option, const QString& name, const QString& label) {
  auto* popUp = makeChild<FieldPopUp>(fields, option, name, this);
  addRow(*form, label, *popUp);
  rows.push_back({option, name, popUp});
}

void LayoutPane::addScalingRow() {
  const QString name = tr("Size on Sheet");
  scaling = makeChild<ScalingControl>(fields, name, this);
  // A proxy for the focus would tear the ring of the Tab key.
  addRow(*form, tr("Size on S&heet:"), *scaling)->setBuddy(scaling->findChild<QComboBox*>());
  rows.push_back({kFitOption, name, scaling});
}

void LayoutPane::addSwitch(const char* option, const QString& name, const QString& text) {
  auto* box = makeChild<FieldSwitch>(fields, option, text, this);
  form->addRow(makeChild<QLabel>(this), box);  // empty, and as high as the others
  rows.push_back({option, name, box});
}

// For a printer that cannot turn the paper over, the person does.
QWidget* LayoutPane::twoSidedControl() {
  if (!twoSided.empty()) return makeChild<PickOneControl>(*marks, *marks->option(twoSided), this);
  return makeChild<FieldPopUp>(fields, kSidesOption, tr("Two-Sided"), this,
                               marks ? byHandText : nullptr);
}

void LayoutPane::addTwoSidedRow() {
  if (twoSidedRow) form->removeRow(twoSidedRow);
  twoSidedRow = twoSidedControl();
  addRow(*form, tr("T&wo-Sided:"), *twoSidedRow);
  setTabOrder(rows.back().control, twoSidedRow);
}

void LayoutPane::setMarks(PPDMarks* theMarks) {
  marks = theMarks;
  const ppd_option_t* option = marks ? twoSidedOption(marks->ppd()) : nullptr;
  twoSided = option ? option->keyword : "";
  beforeBooklet.reset();
  addTwoSidedRow();
  refresh();
}

// --- What they show ---

void LayoutPane::refresh() {
  for (const Row& row : rows) refresh(row);
}

void LayoutPane::refresh(const Row& row) {
  const bool printers = isPrintersOwn(row.option);
  const bool isOffered = fields.matters(row.option) && !printers;
  row.control->setEnabled(isOffered);
  if (QWidget* label = form->labelForField(row.control)) label->setEnabled(isOffered);
  row.control->setToolTip(
      printers ? toolTipFor(tr("The printer has a setting of its own for this.")) : QString());
  form->setRowVisible(row.control, isShown(row.option));
}

// What the person can set, and what was set by others.
bool LayoutPane::isShown(const std::string& option) const {
  if (option == kTogetherOption) return fields.matters(option);
  if (option != kOrderOnSheetOption && option != kBorderOption) return true;
  return fields.matters(option) || fields.value(option) != findJobSetting(option)->usual();
}

bool LayoutPane::isPrintersOwn(const std::string& option) const {
  return marks && tavrin::isPrintersOwn(marks->ppd(), option);
}

QString LayoutPane::textOf(const Row& row) const {
  if (row.control == scaling) return scaling->summary();
  return valueText(row.option, fields.effectiveValue(row.option));
}

Pane::Lines LayoutPane::summary() const {
  Lines lines;
  for (const Row& row : rows)
    if (isShown(row.option) && !isPrintersOwn(row.option))
      lines.emplace_back(row.name, textOf(row));
  if (twoSided.empty())
    lines.emplace_back(tr("Two-Sided"), static_cast<QComboBox*>(twoSidedRow)->currentText());
  else
    lines.emplace_back(tr("Two-Sided"), shownLine(marks->choiceText(twoSided).value_or("")));
  return lines;
}

// --- Booklets ---

OptString LayoutPane::sides() const {
  return twoSided.empty() ? fields.value(kSidesOption) : marks->choice(twoSided);
}

void LayoutPane::chooseSides(const std::string& choice) {
  if (twoSided.empty())
    fields.suggestValue(kSidesOption, choice);
  else
    marks->choose(twoSided, choice);
}

// The sheets of a booklet are turned over the short edge. The person sees that, and can change it.
void LayoutPane::followBooklet() {
  const OptString shortEdge =
      twoSided.empty() ? kTwoSidedShortEdge : shortEdgeChoice(*marks->option(twoSided));
  if (!shortEdge) return;
  if (fields.value(kBookletOption) == kYes) {
    beforeBooklet = sides();
    chooseSides(*shortEdge);
  } else if (beforeBooklet && sameText(sides(), shortEdge)) {
    chooseSides(*beforeBooklet);
  }
}

}  // namespace tavrin
