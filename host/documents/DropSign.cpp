#include "host/documents/DropSign.h"

#include <QPainter>

namespace tavrin {
namespace {

constexpr double kVeil = 0.8;   // of what lies below it
constexpr double kFrame = 0.2;  // line heights

}  // namespace

DropSign::DropSign(QWidget& window) : QWidget(&window) {
  setObjectName("dropSign");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void DropSign::appear() {
  setGeometry(parentWidget()->rect());
  raise();
  show();
}

void DropSign::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor veil = palette().color(QPalette::Window);
  veil.setAlphaF(kVeil);
  painter.fillRect(rect(), veil);
  const double line = fontMetrics().height();
  const QRectF frame = QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
  painter.setPen(QPen(palette().color(QPalette::Highlight), kFrame * line));
  painter.drawRoundedRect(frame, line / 2, line / 2);
  const QString words = tr("Add to the documents");
  QRectF label = QRectF(fontMetrics().boundingRect(words)).adjusted(-line, -line, line, line);
  label.moveCenter(frame.center());
  painter.setBrush(palette().color(QPalette::Highlight));
  painter.drawRoundedRect(label, line / 2, line / 2);
  painter.setPen(palette().color(QPalette::HighlightedText));
  painter.drawText(label, Qt::AlignCenter, words);
}

}  // namespace tavrin
