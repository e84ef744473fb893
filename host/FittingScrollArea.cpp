#include "host/FittingScrollArea.h"

#include <algorithm>

#include <QScrollBar>

namespace tavrin {

namespace {

// What stays in sight on the smallest screens.
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
  const QSize wanted = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
  return wanted + QSize(verticalScrollBar()->sizeHint().width(), 0);
}

QSize FittingScrollArea::minimumSizeHint() const {
  const QSize least(fontMetrics().averageCharWidth() * kLeastLetters,
                    fontMetrics().height() * kLeastLines);
  return least.boundedTo(sizeHint());
}

}  // namespace tavrin
