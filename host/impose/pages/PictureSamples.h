#pragma once

#include <memory>

#include "host/impose/pages/Qpdf.h"
#include "host/impose/pictures/PictureFrames.h"

namespace tavrin {

// Decodes a picture when it is written, so that there is only one in memory: its samples in grey or
// sRGB on white paper, compressed.
class PictureSamples : public QPDFObjectHandle::StreamDataProvider {
 public:
  PictureSamples(std::shared_ptr<PictureFrames> theFrames, int theFrame)
      : frames(std::move(theFrames)), frame(theFrame) {}

  // How a reader gets back from what is written to the samples.
  QPDFObjectHandle filter() const { return QPDFObjectHandle::newName("/FlateDecode"); }
  QPDFObjectHandle filterParameters() const;
  int components() const { return frames->isGrey(frame) ? 1 : 3; }

  void provideStreamData(const QPDFObjGen&, Pipeline* pipeline) override;

 private:
  std::shared_ptr<PictureFrames> frames;
  int frame;
};

}  // namespace tavrin
