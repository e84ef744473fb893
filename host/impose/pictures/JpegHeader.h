#pragma once

#include <optional>
#include <string>

#include "host/impose/pictures/PictureShape.h"

namespace tavrin {

// What stands in front of the picture in a JPEG file.
struct JpegHeader {
  PictureShape shape;
  int components = 0;
  // Whether PDF has a filter for the way in which the picture is coded.
  bool isForPDF = false;
  // Adobe's programs write inks the wrong way round, and say that they wrote the file.
  bool isByAdobe = false;
  std::string profile;   // ICC; empty for none
  bool isWhole = false;  // whether the end is there
};

bool isJpeg(Bytes bytes);

// Absent when it is damaged.
std::optional<JpegHeader> jpegHeader(Bytes bytes);

}  // namespace tavrin
