#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include <QImageReader>

#include "host/impose/pictures/PictureFrames.h"

namespace tavrin {

// The pages of a TIFF file, or the first picture of other files that Qt reads.
class QtFrames : public PictureFrames {
 public:
  // Whether Qt knows a file of this kind, damaged or not.
  static bool knows(const std::filesystem::path& path);

  QtFrames(const std::filesystem::path& path, const MappedFile& file);

  int count() const override { return static_cast<int>(frames.size()); }
  PictureShape shape(int frame) const override { return frames[frame].shape; }
  bool isGrey(int frame) const override { return frames[frame].isGrey; }
  QImage decoded(int frame) override;

 private:
  struct Frame {
    PictureShape shape;
    bool isGrey;
  };

  void start();
  Frame lookAt(int frame);

  std::filesystem::path path;
  std::unique_ptr<QImageReader> reader;
  std::vector<Frame> frames;
};

}  // namespace tavrin
