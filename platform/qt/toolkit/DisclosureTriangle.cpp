#include "platform/qt/toolkit/DisclosureTriangle.h"

#include <QStyleOptionToolButton>

namespace tavrin {

// The arrow alone tells the state; a button that also looked pressed would say it twice.
void DisclosureTriangle::initStyleOption(QStyleOptionToolButton* option) const {
  QToolButton::initStyleOption(option);
  const auto closed = layoutDirection() == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow;
  option->features |= QStyleOptionToolButton::Arrow;
  option->arrowType = isChecked() ? Qt::DownArrow : closed;
  option->state &= ~QStyle::State_On;
}

}  // namespace tavrin
