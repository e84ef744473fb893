#pragma once

#include "host/impose/pictures/TiffTags.h"

namespace tavrin {

// What a PNG, TIFF or WebP file says of the picture with that index; nothing for other kinds.
TiffTags pictureTags(Bytes file, int picture);

// Whether the end of a PNG file is missing; false for other kinds.
bool isCutOffPng(Bytes file);

}  // namespace tavrin
