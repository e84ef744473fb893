#pragma once

#include <filesystem>
#include <memory>

#include "host/impose/pages/PageSource.h"
#include "host/impose/pictures/JpegHeader.h"

namespace tavrin {

// A JPEG file that goes into the output as it is.
class JpegPicture : public PageSource {
 public:
  // The header is that of the file.
  JpegPicture(std::shared_ptr<MappedFile> theFile, JpegHeader theHeader)
      : file(std::move(theFile)), header(std::move(theHeader)) {}

  int count() const override { return 1; }
  PageLook look(int) const override { return header.shape.look(); }
  bool isStoredOtherwise() const override { return header.shape.isStoredOtherwise(); }
  Drawing draw(int page, QPDF& output) override;

 private:
  std::shared_ptr<MappedFile> file;
  JpegHeader header;
};

}  // namespace tavrin
