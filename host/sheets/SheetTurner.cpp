#include "host/sheets/SheetTurner.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

#include "platform/qt/base/MakeChild.h"

namespace tavrin {

SheetTurner::SheetTurner(QWidget* parent)
    : QWidget(parent),
      back(button("previous", tr("Previous sheet"), {})),
      on(button("next", tr("Next sheet"), {})),
      number(makeChild<QSpinBox>(this)),
      smaller(button("smaller", tr("Smaller"), "−")),
      larger(button("larger", tr("Larger"), "+")) {
  number->setObjectName("sheet");
  number->setButtonSymbols(QAbstractSpinBox::NoButtons);
  number->setAlignment(Qt::AlignCenter);
  number->setKeyboardTracking(false);
  number->installEventFilter(this);
  auto* row = makeChild<QHBoxLayout>(this);
  row->setContentsMargins(0, 0, 0, 0);
  for (QWidget* widget : std::initializer_list<QWidget*>{back, on, number}) row->addWidget(widget);
  row->addStretch();
  for (QWidget* widget : {smaller, larger}) row->addWidget(widget);
  addArrows();
  connect(number, &QSpinBox::valueChanged, this, [this](int value) { emit turned(value - 1); });
  connect(smaller, &QToolButton::clicked, this, [this] { emit zoomed(-1); });
  connect(larger, &QToolButton::clicked, this, [this] { emit zoomed(1); });
}

QToolButton* SheetTurner::button(const char* id, const QString& name, const QString& shownText) {
  auto* made = makeChild<QToolButton>(this);
  made->setObjectName(id);
  made->setText(shownText);
  const int side = fontMetrics().height() * 8 / 5;
  made->setMinimumSize(side, side);
  made->setFocusPolicy(Qt::TabFocus);
  made->setAccessibleName(name);
  made->setToolTip(name);
  return made;
}

void SheetTurner::addArrows() {
  const bool isFromRight = layoutDirection() == Qt::RightToLeft;
  back->setArrowType(isFromRight ? Qt::RightArrow : Qt::LeftArrow);
  on->setArrowType(isFromRight ? Qt::LeftArrow : Qt::RightArrow);
  connect(back, &QToolButton::clicked, number, &QSpinBox::stepDown);
  connect(on, &QToolButton::clicked, number, &QSpinBox::stepUp);
}

void SheetTurner::showSheet(int index, int count, const QString& before, const QString& after) {
  const QSignalBlocker quiet(number);
  number->setPrefix(before);
  number->setSuffix(after);
  number->setRange(count > 0 ? 1 : 0, count);
  number->setValue(index + 1);
  number->setAccessibleName(number->text());
  if (!number->hasFocus()) number->findChild<QLineEdit*>()->deselect();
  for (QWidget* widget : std::initializer_list<QWidget*>{back, on, number})
    widget->setVisible(count > 1);
  back->setEnabled(index > 0);
  on->setEnabled(index + 1 < count);
}

// Return turns to the sheet; it is not for the dialog, which would print.
bool SheetTurner::eventFilter(QObject* watched, QEvent* event) {
  if (watched != number || event->type() != QEvent::KeyPress)
    return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  number->interpretText();
  number->selectAll();
  return true;
}

void SheetTurner::showZoom(bool canGrow, bool canShrink) {
  larger->setEnabled(canGrow);
  smaller->setEnabled(canShrink);
}

}  // namespace tavrin
