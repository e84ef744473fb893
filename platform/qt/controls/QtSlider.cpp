#include "platform/qt/controls/QtSlider.h"

namespace tavrin {

QtSlider::QtSlider(QSlider& slider) : QtControlOf(slider) {
  QObject::connect(&slider, &QSlider::actionTriggered, &receiver, [this] { tellUserChange(); });
}

// While the action runs, the knob has moved already, but the slider's value follows only
// afterwards.
int QtSlider::intValue() const { return widget ? widget->sliderPosition() : 0; }

void QtSlider::setIntValue(int value) {
  if (widget) widget->setValue(value);
}

}  // namespace tavrin
