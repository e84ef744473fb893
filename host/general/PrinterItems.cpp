#include "host/general/PrinterItems.h"

#include <QApplication>
#include <QPainter>

namespace tavrin {
namespace {

// Around the two lines, in parts of a line's height.
constexpr int kPartsAtTheSide = 2;
constexpr int kPartsAboveAndBelow = 4;

QFont detailsFont(QFont font) {
  font.setPointSizeF(font.pointSizeF() * 0.9);
  return font;
}

QColor quiet(QColor color) {
  color.setAlphaF(0.75F);
  return color;
}

// The place of the two lines in an item.
QRect textArea(const QStyleOptionViewItem& item) {
  const int line = item.fontMetrics.height();
  return item.rect.adjusted(line / kPartsAtTheSide, line / kPartsAboveAndBelow,
                            -line / kPartsAtTheSide, -line / kPartsAboveAndBelow);
}

void drawLine(QPainter& painter, const QStyleOptionViewItem& item, Qt::Alignment edge,
              const QString& text) {
  const QRect area = textArea(item);
  const auto alignment = QStyle::visualAlignment(item.direction, edge | Qt::AlignLeft);
  painter.drawText(area, static_cast<int>(alignment | Qt::TextSingleLine),
                   painter.fontMetrics().elidedText(text, Qt::ElideRight, area.width()));
}

}  // namespace

void PrinterItems::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem item = option;
  initStyleOption(&item, index);
  const QString title = std::exchange(item.text, {});
  const QStyle* style = item.widget ? item.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
  const bool isSelected = item.state & QStyle::State_Selected;
  const QColor color = item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
  painter->save();
  painter->setFont(item.font);
  painter->setPen(color);
  drawLine(*painter, item, Qt::AlignTop, title);
  painter->setFont(detailsFont(item.font));
  painter->setPen(isSelected ? color : quiet(color));
  drawLine(*painter, item, Qt::AlignBottom, index.data(kDetails).toString());
  painter->restore();
}

QSize PrinterItems::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem item = option;
  initStyleOption(&item, index);
  const QFontMetrics titles(item.font);
  const QFontMetrics details(detailsFont(item.font));
  const int width = std::max(titles.horizontalAdvance(item.text),
                             details.horizontalAdvance(index.data(kDetails).toString()));
  const int line = titles.height();
  return {width + line * 2 / kPartsAtTheSide,
          line + details.height() + line * 2 / kPartsAboveAndBelow};
}

}  // namespace tavrin
