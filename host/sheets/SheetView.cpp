#include "host/sheets/SheetView.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QStyle>

namespace tavrin {

namespace {

constexpr int kDesk = 16;       // pixels around the paper
constexpr int kShadow = 5;      // pixels
constexpr int kFocusFrame = 2;  // pixels
constexpr double kFaded = 0.45;

// Between the window and what is written on it, so that the paper stands out in light and dark.
QColor deskColour(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  return window.lightness() < 128 ? window.lighter(135) : window.darker(112);
}

}  // namespace

SheetView::SheetView(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SheetView::setPaper(const Paper& thePaper) {
  paper = thePaper;
  setScale(scale);
}

void SheetView::setPicture(const QImage& thePicture, const QSizeF& size) {
  picture = thePicture;
  pictureSize = size;
  isFaded = false;
  setScale(scale);
}

void SheetView::setFaded(bool faded) {
  isFaded = faded;
  update();
}

void SheetView::setMessage(const QString& documentName, const QString& text) {
  name = documentName;
  message = text;
  update();
}

void SheetView::setScale(double pixelsPerPoint) {
  scale = pixelsPerPoint;
  const QSize around(2 * kDesk, 2 * kDesk);
  setMinimumSize(scale > 0 ? (sheetSize() * scale).toSize() + around : QSize(0, 0));
  update();
}

QSizeF SheetView::room() const { return size() - QSize(2 * kDesk, 2 * kDesk); }

QRectF SheetView::rectOf(const QSizeF& sheet) const {
  QRectF place(QPointF(), scale > 0 ? sheet * scale : sheet.scaled(room(), Qt::KeepAspectRatio));
  place.moveCenter(QRectF(rect()).center());
  return place.toRect();  // whole pixels, so that a picture is not blurred
}

int SheetView::longSide(const QSizeF& sheet) const {
  const QRectF place = rectOf(sheet);
  return std::lround(std::max(place.width(), place.height()) * devicePixelRatioF());
}

double SheetView::fittingScale() const {
  const QSizeF visible = parentWidget()->size() - QSize(2 * kDesk, 2 * kDesk);
  return sheetSize().scaled(visible, Qt::KeepAspectRatio).width() / sheetSize().width();
}

void SheetView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void SheetView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

void SheetView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  emit resized();
}

void SheetView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), deskColour(palette()));
  message.isEmpty() ? paintPaper(painter) : paintMessage(painter);
  if (!hasFocus()) return;
  painter.setOpacity(1);
  painter.setPen(QPen(palette().color(QPalette::Highlight), kFocusFrame));
  painter.drawRect(visibleRegion().boundingRect().adjusted(1, 1, -1, -1));
}

void SheetView::paintPaper(QPainter& painter) const {
  const QRectF sheet = sheetRect();
  if (sheet.isEmpty()) return;
  for (int i = kShadow; i > 0; --i)
    painter.fillRect(sheet.adjusted(1, 1, i, i), QColor(0, 0, 0, 16));
  painter.fillRect(sheet, Qt::white);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.setOpacity(isFaded ? kFaded : 1);
  if (!picture.isNull()) return painter.drawImage(sheet, picture);
  const double factor = sheet.width() / paper.size.width();
  painter.setPen(QPen(QColor(0, 0, 0, 70), 1, Qt::DashLine));
  painter.drawRect(sheet.marginsRemoved(paper.margins * factor));
}

void SheetView::paintMessage(QPainter& painter) const {
  const int icon = style()->pixelMetric(QStyle::PM_LargeIconSize);
  const QRect inside = rect().adjusted(kDesk, kDesk, -kDesk, -kDesk);
  const QString text = name + "\n\n" + message;
  QRect place =
      painter.fontMetrics().boundingRect(inside, Qt::AlignCenter | Qt::TextWordWrap, text);
  place.translate(0, icon / 2);
  style()
      ->standardIcon(QStyle::SP_FileIcon)
      .paint(&painter, inside.center().x() - icon / 2, place.top() - icon * 5 / 4, icon, icon);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(QRect(inside.left(), place.top(), inside.width(), inside.bottom() - place.top()),
                   Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
}

}  // namespace tavrin
