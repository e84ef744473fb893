#pragma once

#include <QSlider>

#include "platform/qt/controls/QtControl.h"
#include "platform/toolkit/Controls.h"

namespace tavrin {

// A slider. Its action also runs at every step of a drag.
class QtSlider : public QtControlOf<Slider, QSlider> {
 public:
  explicit QtSlider(QSlider& slider);

  int intValue() const override;
  void setIntValue(int value) override;
};

}  // namespace tavrin
