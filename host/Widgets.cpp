#include "host/Widgets.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QScreen>

namespace tavrin {

namespace {

constexpr int kLeastPopUpLetters = 16;

}  // namespace

QLabel* makeTextLabel(QWidget* parent) {
  auto* label = makeChild<QLabel>(parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

QLabel* addRow(QFormLayout& form, const QString& label, QWidget& control) {
  auto* title = makeChild<QLabel>(form.parentWidget());
  title->setTextFormat(Qt::PlainText);
  title->setBuddy(&control);
  title->setText(label);
  form.addRow(title, &control);
  return title;
}

QFormLayout* makeForm(QWidget* parent) {
  auto* form = makeChild<QFormLayout>(parent);
  form->setLabelAlignment(Qt::AlignRight);
  form->setRowWrapPolicy(QFormLayout::WrapLongRows);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  return form;
}

void letPopUpShrink(QComboBox& popUp) {
  popUp.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  popUp.setMinimumContentsLength(kLeastPopUpLetters);
  const int room = popUp.screen()->availableGeometry().width() / 2;
  const int scrollBar = popUp.fontMetrics().averageCharWidth() * 6;
  popUp.view()->setMinimumWidth(std::min(popUp.view()->sizeHintForColumn(0) + scrollBar, room));
}

}  // namespace tavrin
