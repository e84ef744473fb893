#pragma once

#include <memory>
#include <string>

#include "host/impose/pages/Qpdf.h"

namespace tavrin {

using Samples = std::shared_ptr<QPDFObjectHandle::StreamDataProvider>;

// An image of 8 bits a component; the components are grey, RGB or inks.
struct ImageFormat {
  int width;
  int height;
  int components;
  std::string profile;  // ICC; one that does not suit the image is left out
};

// A new image of the output without data yet.
QPDFObjectHandle imageObject(QPDF& output, const ImageFormat& format);

}  // namespace tavrin
