#include "host/dialog/ScreenFit.h"

#include <algorithm>

#include <QLayout>
#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace tavrin {
namespace {

// What a window manager puts around a window, at most.
constexpr QSize kWindowFrame(16, 48);

}  // namespace

void ScreenFit::fit() {
  window.ensurePolished();
  const QSize room = window.screen()->availableSize() - kWindowFrame;
  const int width = std::max(window.layout()->totalSizeHint().width(), window.width());
  const int height = window.layout()->totalHeightForWidth(width);
  const int extra = wantedHeight ? std::max(window.height() - wantedHeight, 0) : 0;
  const bool needsBar = height > room.height();
  const int bar = needsBar ? window.style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
  wantedHeight = std::min(height, room.height());
  window.resize(QSize(width + bar, height + extra).boundedTo(room));
  if (window.isVisible()) stayOnScreen();
}

// A window that grows does so downwards and to the right, wherever it stands.
void ScreenFit::stayOnScreen() {
  const QRect screenArea = window.screen()->availableGeometry();
  const QRect frame = window.frameGeometry();
  const QPoint beyond(std::max(frame.right() - screenArea.right(), 0),
                      std::max(frame.bottom() - screenArea.bottom(), 0));
  if (beyond.isNull()) return;
  window.move(std::max(frame.left() - beyond.x(), screenArea.left()),
              std::max(frame.top() - beyond.y(), screenArea.top()));
}

}  // namespace tavrin
