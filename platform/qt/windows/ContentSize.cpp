#include "platform/qt/windows/ContentSize.h"

#include <algorithm>

#include <QLabel>
#include <QLayout>
#include <QPlainTextEdit>
#include <QScrollArea>

namespace tavrin {

namespace {

// A layout forgets only its own measurements, not those of the layouts in it.
void measureAnew(QLayout& layout) {
  for (int i = 0; i < layout.count(); ++i)
    if (QLayout* inner = layout.itemAt(i)->layout()) measureAnew(*inner);
  layout.invalidate();
}

void wrapLines(const QList<QLabel*>& labels, bool wrap) {
  for (QLabel* label : labels) label->setWordWrap(wrap);
}

// As wide as the longest line, within limits; longer lines wrap.
int contentWidth(const QWidget& content, int widest) {
  const QList<QLabel*> labels = content.findChildren<QLabel*>();
  wrapLines(labels, false);
  measureAnew(*content.layout());
  const int width = content.layout()->totalSizeHint().width();
  wrapLines(labels, true);
  measureAnew(*content.layout());
  return std::min(width, widest);
}

QSize laidOutSize(const QWidget& content, int widest) {
  QLayout& layout = *content.layout();
  const int width = contentWidth(content, widest);
  const int height = layout.hasHeightForWidth() ? layout.totalHeightForWidth(width)
                                                : layout.totalSizeHint().height();
  return {width, std::max(height, layout.totalMinimumSize().height())};
}

QSize textSize(const QPlainTextEdit& text, int widest) {
  const QString start = text.toPlainText().left(8000);
  const QFontMetrics metrics = text.fontMetrics();
  const QRect lines =
      metrics.boundingRect(QRect(0, 0, widest, QWIDGETSIZE_MAX), Qt::TextWordWrap, start);
  const int edge = 2 * (int(text.document()->documentMargin()) + text.frameWidth());
  return {lines.width() + edge + 2 * metrics.averageCharWidth(),
          lines.height() + edge + metrics.lineSpacing() / 2};
}

}  // namespace

int easyLineWidth(const QWidget& text) {
  constexpr int kCharacters = 72;
  return text.fontMetrics().averageCharWidth() * kCharacters;
}

QSize contentSize(const QAbstractScrollArea& area, int widest) {
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&area)) return textSize(*text, widest);
  const auto* contents = qobject_cast<const QScrollArea*>(&area);
  const bool isLaidOut = contents && contents->widget() && contents->widget()->layout();
  return isLaidOut ? laidOutSize(*contents->widget(), widest) : area.sizeHint();
}

}  // namespace tavrin
