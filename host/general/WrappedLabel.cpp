#include "host/general/WrappedLabel.h"

#include <algorithm>

#include <QResizeEvent>

namespace tavrin {

WrappedLabel::WrappedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  policy.setHeightForWidth(false);
  setSizePolicy(policy);
}

QSize WrappedLabel::sizeHint() const {
  return QSize(0, std::max(heightForWidth(width()), fontMetrics().height()));
}

void WrappedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  if (event->oldSize().width() != event->size().width()) updateGeometry();
}

}  // namespace tavrin
