#pragma once

#include "host/impose/layout/Geometry.h"
#include "host/impose/layout/Placement.h"
#include "host/impose/pictures/TiffTags.h"

namespace tavrin {

// How a stored picture is to be shown.
struct PictureShape {
  int width = 0;  // pixels, as stored
  int height = 0;
  int orientation = 1;  // from 1 to 8, as in Exif
  Density density;      // as stored

  bool isStoredOtherwise() const { return orientation != 1; }
  PageLook look() const;
  // Takes the stored picture, as the unit square, to the one that is shown.
  Matrix matrix() const;
};

}  // namespace tavrin
