#include "host/impose/pictures/QtFrames.h"

#include <algorithm>
#include <array>

#include "host/impose/pictures/PictureTags.h"
#include "host/impose/pictures/TiffTags.h"
#include "host/impose/pictures/Trouble.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

// Whatever else Qt has a plug-in for stays out: some of it is no picture, or needs a display.
constexpr std::array kKinds{"bmp", "gif", "jpeg", "pbm", "pgm", "png", "ppm", "tiff", "webp"};
constexpr int kMostMegabytes = 2048;

[[noreturn]] void complain(const std::filesystem::path& path, const std::string& what) {
  throw Trouble(Status::damaged, "The picture " + quoted(path.string()) + what);
}

bool isGreyFormat(QImage::Format format) {
  return format == QImage::Format_Grayscale8 || format == QImage::Format_Grayscale16;
}

// Whether colours can be told from the format, before the picture is decoded.
bool hasPalette(QImage::Format format) {
  return format == QImage::Format_Invalid || format == QImage::Format_Mono ||
         format == QImage::Format_MonoLSB || format == QImage::Format_Indexed8;
}

}  // namespace

bool QtFrames::knows(const std::filesystem::path& path) {
  const QByteArray kind = QImageReader::imageFormat(QFile::decodeName(path.c_str()));
  return std::ranges::any_of(kKinds, [&](const char* known) { return kind == known; });
}

QtFrames::QtFrames(const std::filesystem::path& thePath, const MappedFile& file) : path(thePath) {
  QImageReader::setAllocationLimit(kMostMegabytes);
  start();
  const int pictures = reader->format() == "tiff" ? std::max(reader->imageCount(), 1) : 1;
  if (reader->format() == "tiff" && hasMoreThan(pictures, file.bytes()))
    complain(path, " is cut off: pages of it are missing. Copy it anew.");
  if (isCutOffPng(file.bytes())) complain(path, " is cut off: its end is missing. Copy it anew.");
  for (int frame = 0; frame < pictures; ++frame) {
    frames.push_back(lookAt(frame));
    const TiffTags tags = pictureTags(file.bytes(), frame);
    frames.back().shape.orientation = tags.orientation;
    if (isSound(tags.density)) frames.back().shape.density = tags.density;
  }
}

void QtFrames::start() {
  reader = std::make_unique<QImageReader>(QFile::decodeName(path.c_str()));
  reader->setDecideFormatFromContent(true);
}

QtFrames::Frame QtFrames::lookAt(int frame) {
  if (frame > 0 && !reader->jumpToImage(frame)) complain(path, " is damaged.");
  QSize size = reader->size();
  bool isGrey = isGreyFormat(reader->imageFormat());
  if (size.isEmpty() || hasPalette(reader->imageFormat())) {
    const QImage image = reader->read();
    if (image.isNull()) complain(path, " is damaged, or too large.");
    size = image.size();
    isGrey = !image.hasAlphaChannel() && image.allGray();
    start();
  }
  return {{size.width(), size.height(), 1, {}}, isGrey};
}

QImage QtFrames::decoded(int frame) {
  start();
  if (frame > 0 && !reader->jumpToImage(frame)) complain(path, " is damaged.");
  QImage image = reader->read();
  if (image.isNull()) complain(path, " is damaged, or too large.");
  if (image.width() != frames[frame].shape.width || image.height() != frames[frame].shape.height)
    complain(path, " has changed while it was read.");
  return image;
}

}  // namespace tavrin
