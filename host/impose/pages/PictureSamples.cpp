#include "host/impose/pages/PictureSamples.h"

#include <algorithm>
#include <vector>

#include <QColorSpace>
#include <QImage>

#include "host/impose/pages/Qpdf.h"

namespace tavrin {

namespace {

constexpr int kRowsAtATime = 64;
// Each row is written as what is different in it from the row above, which compresses well.
constexpr int kDifferences = 12;
constexpr unsigned char kRowOfDifferences = 2;

unsigned char onWhite(int colour, int alpha) {
  return static_cast<unsigned char>((colour * alpha + 255 * (255 - alpha) + 127) / 255);
}

// Some rows with their colours in sRGB, 8 bits each.
QImage strip(const QImage& image, int top) {
  QImage rows = image.copy(0, top, image.width(), std::min(kRowsAtATime, image.height() - top));
  const auto format = image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32;
  const bool isFine = rows.depth() > 32;
  if (!isFine) rows.convertTo(format);
  const QColorSpace usual(QColorSpace::SRgb);
  if (rows.colorSpace().isValid() && rows.colorSpace() != usual) rows.convertToColorSpace(usual);
  rows.convertTo(format);
  return rows;
}

// For pictures, what more effort gains is not worth six times the time.
class QuickCompression {
 public:
  QuickCompression() { Pl_Flate::setCompressionLevel(1); }
  ~QuickCompression() { Pl_Flate::setCompressionLevel(-1); }
};

class RowWriter {
 public:
  RowWriter(int width, int components, Pipeline& to)
      : perPixel(components),
        above(static_cast<std::size_t>(width) * components),
        row(above.size()),
        line(above.size() + 1, kRowOfDifferences),
        output(to) {}

  void write(const QImage& rows, int index) {
    const auto* pixels = reinterpret_cast<const QRgb*>(rows.constScanLine(index));
    for (int x = 0; x < rows.width(); ++x)
      take(pixels[x], &row[static_cast<std::size_t>(x) * perPixel]);
    for (std::size_t at = 0; at < row.size(); ++at)
      line[at + 1] = static_cast<unsigned char>(row[at] - above[at]);
    output.write(line.data(), line.size());
    row.swap(above);
  }

 private:
  void take(QRgb pixel, unsigned char* place) const {
    const int alpha = qAlpha(pixel);
    place[0] = onWhite(perPixel == 1 ? qGray(pixel) : qRed(pixel), alpha);
    if (perPixel == 1) return;
    place[1] = onWhite(qGreen(pixel), alpha);
    place[2] = onWhite(qBlue(pixel), alpha);
  }

  int perPixel;
  std::vector<unsigned char> above, row, line;
  Pipeline& output;
};

}  // namespace

QPDFObjectHandle PictureSamples::filterParameters() const {
  auto parameters = QPDFObjectHandle::newDictionary();
  parameters.replaceKey("/Predictor", QPDFObjectHandle::newInteger(kDifferences));
  parameters.replaceKey("/Colors", QPDFObjectHandle::newInteger(components()));
  parameters.replaceKey("/Columns", QPDFObjectHandle::newInteger(frames->shape(frame).width));
  return parameters;
}

void PictureSamples::provideStreamData(const QPDFObjGen&, Pipeline* pipeline) {
  const QImage image = frames->decoded(frame);
  const QuickCompression quick;
  Pl_Flate compressor("samples", pipeline, Pl_Flate::a_deflate);
  RowWriter writer(image.width(), components(), compressor);
  for (int top = 0; top < image.height(); top += kRowsAtATime) {
    const QImage rows = strip(image, top);
    for (int row = 0; row < rows.height(); ++row) writer.write(rows, row);
  }
  compressor.finish();
}

}  // namespace tavrin
