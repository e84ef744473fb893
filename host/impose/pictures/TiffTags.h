#pragma once

#include "host/impose/pictures/MappedFile.h"

namespace tavrin {

// Pixels per inch.
struct Density {
  double x = 200;
  double y = 200;
};
// Whether a picture can have been meant like that.
bool isSound(const Density& density);

// What a TIFF file, and the Exif data in other pictures, says of a picture.
struct TiffTags {
  int orientation = 1;    // from 1 to 8, as in Exif
  Density density{0, 0};  // 0 for none
};

// The tags of the directory with that index; the bytes are from a stranger, and what is wrong with
// them counts as not there.
TiffTags tiffTags(Bytes bytes, int directory = 0);

// Whether a TIFF file says that another directory follows on so many, whether or not it is there.
bool hasMoreThan(int directories, Bytes bytes);

}  // namespace tavrin
