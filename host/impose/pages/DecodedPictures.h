#pragma once

#include <memory>
#include <utility>

#include "host/impose/pages/PageSource.h"
#include "host/impose/pictures/PictureFrames.h"

namespace tavrin {

// Pictures that PDF has no filter for.
class DecodedPictures : public PageSource {
 public:
  explicit DecodedPictures(std::shared_ptr<PictureFrames> theFrames)
      : frames(std::move(theFrames)) {}

  int count() const override { return frames->count(); }
  PageLook look(int page) const override { return frames->shape(page).look(); }
  bool isStoredOtherwise() const override;
  Drawing draw(int page, QPDF& output) override;

 private:
  std::shared_ptr<PictureFrames> frames;
};

}  // namespace tavrin
