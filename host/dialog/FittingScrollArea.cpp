#include "host/dialog/FittingScrollArea.h"

#include <algorithm>

#include <QEvent>

namespace tavrin {

namespace {

// What can be seen on even the smallest screen.
constexpr int kLeastLines = 6;
constexpr int kLeastLetters = 24;

}  // namespace

FittingScrollArea::FittingScrollArea(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
}

QSize FittingScrollArea::sizeHint() const {
  if (!widget()) return QScrollArea::sizeHint();
  return widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
}

int FittingScrollArea::heightForWidth(int width) const {
  if (!widget()) return -1;
  return widget()->hasHeightForWidth() ? widget()->heightForWidth(width) : sizeHint().height();
}

// When the contents want another size, so does this area.
bool FittingScrollArea::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}

QSize FittingScrollArea::minimumSizeHint() const {
  const QSize least(fontMetrics().averageCharWidth() * kLeastLetters,
                    fontMetrics().height() * kLeastLines);
  return least.boundedTo(sizeHint());
}

}  // namespace tavrin
