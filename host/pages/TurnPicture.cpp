#include "host/pages/TurnPicture.h"

#include <QPainter>
#include <QPainterPath>

namespace tavrin {
namespace {

// In a field of this size, which is stretched to that of the widget.
constexpr QSizeF kField(44, 20);
constexpr QPointF kPrinted(11, 10);
constexpr QPointF kBlank(34, 10);
constexpr double kLargestSide = 14;
constexpr int kSheets = 3;
constexpr double kOffset = 0.8;  // from one sheet of the stack to the next
constexpr double kMargin = 1.5;
constexpr double kArrow = 1.1;

constexpr int kHeight = 9;  // of the widget, in line heights

// A head at the end of a line that runs in that direction, of length 1.
void drawHead(QPainter& painter, const QPointF& end, const QPointF& direction) {
  const QPointF side(direction.y(), -direction.x());
  QPainterPath head(end + kArrow * direction);
  head.lineTo(end + kArrow * side);
  head.lineTo(end - kArrow * side);
  painter.fillPath(head, painter.pen().color());
}

}  // namespace

TurnPicture::TurnPicture(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void TurnPicture::setTurn(Edge theEdge, const QSizeF& thePaper) {
  edge = theEdge;
  paper = thePaper;
  update();
}

QSize TurnPicture::sizeHint() const {
  const double height = kHeight * fontMetrics().height();
  return (kField * (height / kField.height())).toSize();
}

// About an axis that stands upright.
bool TurnPicture::isTurnedSideways() const {
  return (edge == Edge::longer) == (paper.height() >= paper.width());
}

QSizeF TurnPicture::sheetSize() const {
  return paper.scaled(kLargestSide, kLargestSide, Qt::KeepAspectRatio);
}

void TurnPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QSizeF drawn = kField.scaled(size(), Qt::KeepAspectRatio);
  const double scale = drawn.width() / kField.width();
  painter.translate((width() - drawn.width()) / 2, (height() - drawn.height()) / 2);
  painter.scale(scale, scale);
  painter.setPen(QPen(palette().color(QPalette::Text), 1.5 / scale));
  drawStack(painter, kPrinted, true);
  drawStack(painter, kBlank, false);
  drawEdge(painter, kPrinted);
  drawTurn(painter, kPrinted);
  const QPointF from((kPrinted.x() + kBlank.x()) / 2 - 1, kPrinted.y());
  painter.drawLine(from, from + QPointF(2.5, 0));
  drawHead(painter, from + QPointF(2.5, 0), {1, 0});
}

// The uppermost sheet last.
void TurnPicture::drawStack(QPainter& painter, const QPointF& middle, bool isPrinted) const {
  QRectF sheet({}, sheetSize());
  painter.setBrush(palette().color(QPalette::Base));
  for (int below = kSheets - 1; below >= 0; --below) {
    sheet.moveCenter(middle + QPointF(below, below) * kOffset);
    painter.drawRect(sheet);
  }
  painter.setBrush(Qt::NoBrush);
  isPrinted ? drawPrinted(painter, sheet) : drawShiningThrough(painter, sheet);
}

void TurnPicture::drawPrinted(QPainter& painter, const QRectF& sheet) const {
  const QRectF inside = sheet.adjusted(kMargin, kMargin, -kMargin, -kMargin);
  painter.fillRect(QRectF(inside.topLeft(), QSizeF(inside.width(), 2)), painter.pen().color());
  for (double y = inside.top() + 4; y <= inside.bottom(); y += 1.8)
    painter.drawLine(QPointF(inside.left(), y), QPointF(inside.right(), y));
}

// Where the top of the other side has come to.
void TurnPicture::drawShiningThrough(QPainter& painter, const QRectF& sheet) const {
  QRectF top(sheet.left() + kMargin, sheet.top() + kMargin, sheet.width() - 2 * kMargin, 2);
  if (!isTurnedSideways()) top.moveBottom(sheet.bottom() - kMargin);
  painter.save();
  painter.setPen(QPen(palette().color(QPalette::Text), painter.pen().widthF(), Qt::DotLine));
  painter.drawRect(top);
  painter.restore();
}

// The line that the stack is turned about.
void TurnPicture::drawEdge(QPainter& painter, const QPointF& middle) const {
  const QPointF along = isTurnedSideways() ? QPointF(0, 1) : QPointF(1, 0);
  painter.save();
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2.5 * painter.pen().widthF()));
  painter.drawLine(middle - 9.3 * along, middle + 9.3 * along);
  painter.restore();
}

// An arc round that line, from one side of the stack over to the other.
void TurnPicture::drawTurn(QPainter& painter, const QPointF& middle) const {
  painter.save();
  painter.translate(middle);
  if (!isTurnedSideways()) painter.rotate(90);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2 * painter.pen().widthF()));
  QPainterPath arc(QPointF(-4, -7.4));
  arc.cubicTo(QPointF(-3, -10.4), QPointF(3, -10.4), QPointF(4, -8));
  painter.drawPath(arc);
  drawHead(painter, {4, -8}, {0.3, 0.95});
  painter.restore();
}

}  // namespace tavrin
