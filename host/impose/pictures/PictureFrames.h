#pragma once

#include <QImage>

#include "host/impose/pictures/PictureShape.h"

namespace tavrin {

// The pictures in a file that a library decodes. What goes wrong is thrown as Trouble.
class PictureFrames {
 public:
  virtual ~PictureFrames() = default;

  virtual int count() const = 0;
  virtual PictureShape shape(int frame) const = 0;
  // Whether there are no colours in it; false also where that is not known yet.
  virtual bool isGrey(int frame) const = 0;
  // As large as the shape says, and as stored. Decodes it, which takes memory and time.
  virtual QImage decoded(int frame) = 0;
};

}  // namespace tavrin
