#include "host/panes/Widgets.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QScreen>
#include <QStyle>

#include "host/panes/Pane.h"

namespace tavrin {

namespace {

constexpr int kLeastPopUpLetters = 16;
// What a label may ask for to stand in one line with the others: so many letters, or such a part of
// the width where there is room.
constexpr int kMostLabelLetters = 24;
constexpr double kMostLabelShare = 0.4;

using Labels = std::vector<QWidget*>;

Labels labelsOf(const QWidget& widget) {
  Labels labels;
  for (const QFormLayout* form : widget.findChildren<QFormLayout*>())
    for (int row = 0; row < form->rowCount(); ++row)
      if (const QLayoutItem* label = form->itemAt(row, QFormLayout::LabelRole))
        labels.push_back(label->widget());
  return labels;
}

// As wide as the widest of those that are not longer than most.
int columnWidth(std::vector<int> wanted, int most) {
  std::erase_if(wanted, [most](int width) { return width > most; });
  return wanted.empty() ? 0 : std::ranges::max(wanted);
}

// All rows are as high as those with a pop-up.
int rowHeight(const QWidget& widget) {
  const auto* popUp = widget.findChild<QComboBox*>();
  return popUp ? popUp->sizeHint().height() : 0;
}

void addStops(QWidget& widget, std::vector<QWidget*>& stops);

void addStops(const QLayout& layout, std::vector<QWidget*>& stops) {
  for (int i = 0; i < layout.count(); ++i) {
    if (QWidget* widget = layout.itemAt(i)->widget()) addStops(*widget, stops);
    if (const QLayout* inner = layout.itemAt(i)->layout()) addStops(*inner, stops);
  }
}

void addStops(QWidget& widget, std::vector<QWidget*>& stops) {
  if (widget.focusPolicy() & Qt::TabFocus) return stops.push_back(&widget);
  if (widget.layout() && widget.layout()->count() > 0) return addStops(*widget.layout(), stops);
  QWidget* next = widget.nextInFocusChain();
  for (; next != &widget; next = next->nextInFocusChain())
    if (widget.isAncestorOf(next) && next->focusPolicy() & Qt::TabFocus) stops.push_back(next);
}

}  // namespace

void orderTabs(const std::vector<QWidget*>& widgets) {
  std::vector<QWidget*> stops;
  for (QWidget* widget : widgets) addStops(*widget, stops);
  for (std::size_t i = 1; i < stops.size(); ++i) QWidget::setTabOrder(stops[i - 1], stops[i]);
}

QLabel* makeTextLabel(QWidget* parent) {
  auto* label = makeChild<QLabel>(parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setMinimumWidth(1);  // a monstrous word does not widen the window
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

QString toolTipFor(const QString& text) {
  return "<span style='white-space:pre-wrap'>" + text.toHtmlEscaped() + "</span>";
}

QLabel* addRow(QFormLayout& form, const QString& label, QWidget& control) {
  auto* title = makeChild<QLabel>(form.parentWidget());
  title->setTextFormat(Qt::PlainText);
  // At the control, whichever way the label's own text runs.
  const auto edge = QStyle::visualAlignment(control.layoutDirection(), Qt::AlignRight);
  title->setAlignment(edge | Qt::AlignAbsolute | Qt::AlignVCenter);
  title->setBuddy(&control);
  title->setText(label);
  form.addRow(title, &control);
  return title;
}

QFormLayout* makeForm(QWidget* parent) {
  auto* form = makeChild<QFormLayout>(parent);
  form->setContentsMargins(0, 0, 0, 0);
  form->setLabelAlignment(Qt::AlignRight);
  form->setRowWrapPolicy(QFormLayout::WrapLongRows);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  return form;
}

void lineUpForms(const QWidget& widget) {
  const Labels labels = labelsOf(widget);
  const auto panes = widget.findChildren<Pane*>();
  std::vector<int> wanted;
  for (const QWidget* label : labels) wanted.push_back(label->sizeHint().width());
  for (const Pane* pane : panes) wanted.push_back(pane->labelWidth());
  const int most = std::max(widget.fontMetrics().averageCharWidth() * kMostLabelLetters,
                            int(widget.width() * kMostLabelShare));
  const int width = columnWidth(wanted, most);
  for (QWidget* label : labels) label->setMinimumSize(width, rowHeight(widget));
  for (Pane* pane : panes) pane->setLabelWidth(width);
}

void letPopUpShrink(QComboBox& popUp) {
  popUp.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  popUp.setMinimumContentsLength(kLeastPopUpLetters);
  const int room = popUp.screen()->availableGeometry().width() / 2;
  const int scrollBar = popUp.fontMetrics().averageCharWidth() * 6;
  popUp.view()->setMinimumWidth(std::min(popUp.view()->sizeHintForColumn(0) + scrollBar, room));
}

}  // namespace tavrin
