#pragma once

#include <QSlider>

#include "platform/qt/QtView.h"

namespace tavrin {

// A slider. Its action runs at every step of a drag, too.
class QtSlider : public QtControlOf<Slider, QSlider> {
 public:
  explicit QtSlider(QSlider& slider);

  int intValue() const override;
  void setIntValue(int value) override;
};

}  // namespace tavrin
