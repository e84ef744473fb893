#include "host/impose/pages/JpegPicture.h"

#include "host/impose/pages/ImageObject.h"
#include "host/impose/pages/Qpdf.h"

namespace tavrin {

namespace {

class WholeFile : public QPDFObjectHandle::StreamDataProvider {
 public:
  explicit WholeFile(std::shared_ptr<MappedFile> theFile) : file(std::move(theFile)) {}

  void provideStreamData(const QPDFObjGen&, Pipeline* pipeline) override {
    pipeline->write(file->bytes().data(), file->bytes().size());
    pipeline->finish();
  }

 private:
  std::shared_ptr<MappedFile> file;
};

}  // namespace

Drawing JpegPicture::draw(int, QPDF& output) {
  const PictureShape& shape = header.shape;
  QPDFObjectHandle image =
      imageObject(output, {shape.width, shape.height, header.components, header.profile});
  if (header.components == 4 && header.isByAdobe)
    image.getDict().replaceKey("/Decode", QPDFObjectHandle::parse("[1 0 1 0 1 0 1 0]"));
  image.replaceStreamData(std::make_shared<WholeFile>(file),
                          QPDFObjectHandle::newName("/DCTDecode"), QPDFObjectHandle::newNull());
  return {image, shape.matrix()};
}

}  // namespace tavrin
