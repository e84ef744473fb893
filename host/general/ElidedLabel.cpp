#include "host/general/ElidedLabel.h"

#include <QStyle>
#include <QStylePainter>

namespace tavrin {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

QSize ElidedLabel::sizeHint() const {
  return {fontMetrics().horizontalAdvance(text()), fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const { return {0, fontMetrics().height()}; }

void ElidedLabel::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  const QRect area = contentsRect();
  const auto alignment = QStyle::visualAlignment(layoutDirection(), this->alignment());
  painter.drawItemText(area, static_cast<int>(alignment), palette(), isEnabled(),
                       fontMetrics().elidedText(text(), Qt::ElideRight, area.width()),
                       foregroundRole());
}

}  // namespace tavrin
