#include "platform/toolkit/View.h"

namespace tavrin {

void View::setFrameOrigin(double x, double y) {
  const Rect old = frame();
  setFrame({x, y, old.width, old.height});
}

void View::setFrameSize(double width, double height) {
  const Rect old = frame();
  setFrame({old.x, old.y, width, height});
}

}  // namespace tavrin
