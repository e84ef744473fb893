#include "host/impose/pages/DecodedPictures.h"

#include "host/impose/pages/ImageObject.h"
#include "host/impose/pages/PictureSamples.h"

namespace tavrin {

bool DecodedPictures::isStoredOtherwise() const {
  for (int frame = 0; frame < frames->count(); ++frame)
    if (frames->shape(frame).isStoredOtherwise()) return true;
  return false;
}

Drawing DecodedPictures::draw(int page, QPDF& output) {
  const PictureShape shape = frames->shape(page);
  const auto samples = std::make_shared<PictureSamples>(frames, page);
  QPDFObjectHandle image =
      imageObject(output, {shape.width, shape.height, samples->components(), {}});
  image.replaceStreamData(samples, samples->filter(), samples->filterParameters());
  return {image, shape.matrix()};
}

}  // namespace tavrin
