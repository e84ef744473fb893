#include "platform/qt/layout/LabelColumn.h"

#include <algorithm>

#include <QAbstractButton>
#include <QLabel>

#include "platform/qt/layout/ViewFrames.h"

namespace tavrin {

namespace {

// A button has its own text; a label that names one stands somewhere else.
bool isInColumn(const QLabel& label) {
  return isView(label) && label.buddy() && !qobject_cast<const QAbstractButton*>(label.buddy());
}

QList<QLabel*> columnOf(const QWidget& panel) {
  QList<QLabel*> labels = panel.findChildren<QLabel*>();
  labels.removeIf([](const QLabel* label) { return !isInColumn(*label); });
  return labels;
}

}  // namespace

int labelColumnWidth(const QWidget& panel) {
  int widest = 0;
  for (const QLabel* label : columnOf(panel))
    if (!isFlaggedHidden(*label)) widest = std::max(widest, label->sizeHint().width());
  return widest;
}

// A program sets it whenever something was laid out; that ends only if nothing is laid out again.
void setLabelColumnWidth(QWidget& panel, int pixels) {
  bool isOther = false;
  for (QLabel* label : columnOf(panel)) {
    isOther |= label->minimumWidth() != pixels;
    label->setMinimumWidth(pixels);
  }
  if (isOther) layoutChanged(panel);
}

}  // namespace tavrin
