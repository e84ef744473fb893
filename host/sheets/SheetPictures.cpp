#include "host/sheets/SheetPictures.h"

#include <algorithm>

#include <QTransform>

namespace tavrin {

namespace {

constexpr int kLargest = 4500;   // pixels of the longer side
constexpr int kKept = 96 << 10;  // KiB of all pictures; more than the largest one
constexpr std::chrono::milliseconds kRest(40);

// A reader has turned it otherwise.
QImage upright(const QImage& picture, const Sheet& sheet) {
  const int turn = sheet.upright - sheet.rotation;
  return turn ? picture.transformed(QTransform().rotate(turn)) : picture;
}

}  // namespace

SheetPictures::SheetPictures(Preview& thePreview) : preview(thePreview), pictures(kKept) {
  timer.setSingleShot(true);
  timer.setInterval(kRest);
  connect(&timer, &QTimer::timeout, this, &SheetPictures::draw);
  connect(&preview, &Preview::drawn, this, &SheetPictures::take);
  connect(&preview, &Preview::drawingFailed, this, &SheetPictures::failed);
}

void SheetPictures::want(int index, int pixels, SheetPainter::Ink ink) {
  pixels = std::clamp(pixels, 1, kLargest);
  if (pixels != wantedPixels) pictures.clear();
  wantedIndex = index;
  wantedPixels = pixels;
  wantedInk = ink;
  if (!pictures.contains(index)) timer.start();
}

void SheetPictures::draw() {
  if (preview.stage() == Preview::Stage::ready) preview.draw(wantedIndex, wantedPixels, wantedInk);
}

void SheetPictures::take(int index, int pixels, const QByteArray& bytes) {
  const QImage picture = QImage::fromData(bytes, "PPM");
  if (index != wantedIndex || pixels != wantedPixels) return;
  if (picture.isNull()) return emit failed();
  const SheetPlace place = preview.sheets().at(index);
  const Sheet& sheet = place.document.list[static_cast<std::size_t>(place.index)];
  auto kept = std::make_unique<QImage>(upright(picture, sheet));
  const auto size = static_cast<int>(kept->sizeInBytes() >> 10);
  pictures.insert(index, kept.release(), size);
  emit drawn();
}

}  // namespace tavrin
