#include "host/impose/pictures/JpegHeader.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "host/impose/pictures/StoredNumbers.h"

namespace tavrin {

namespace {

using namespace std::string_view_literals;

constexpr int kStart = 0xd8;
constexpr int kEnd = 0xd9;
constexpr int kScan = 0xda;
constexpr int kJfif = 0xe0;
constexpr int kExif = 0xe1;
constexpr int kProfile = 0xe2;
constexpr int kAdobe = 0xee;
constexpr double kCentimetresPerInch = 2.54;

bool startsWith(Bytes bytes, std::string_view text) { return hasTextAt(bytes, 0, text); }

int two(Bytes bytes, std::size_t at) {
  return static_cast<int>(StoredNumbers(bytes, false).two(at));
}

// Frames, among which are not the tables that have numbers between theirs.
bool isFrame(int marker) {
  return marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
}

bool isWithoutLength(int marker) { return marker == 0x01 || (marker >= 0xd0 && marker <= kStart); }

// Reads segment by segment.
class HeaderReader {
 public:
  explicit HeaderReader(Bytes theBytes) : bytes(theBytes) {}

  std::optional<JpegHeader> read() {
    std::size_t at = 2;
    for (int marker = next(at); marker > 0 && marker != kEnd; marker = next(at)) {
      if (isWithoutLength(marker)) continue;
      if (at + 2 > bytes.size() || two(bytes, at) < 2) return std::nullopt;
      const std::size_t length = two(bytes, at);
      if (at + length > bytes.size()) return std::nullopt;
      if (marker == kScan) return finished(at + length);
      take(marker, bytes.subspan(at + 2, length - 2));
      at += length;
    }
    return std::nullopt;
  }

 private:
  // The marker at that place, which moves behind it; 0 where there is none.
  int next(std::size_t& at) const {
    if (at >= bytes.size() || bytes[at] != 0xff) return 0;
    while (at < bytes.size() && bytes[at] == 0xff) ++at;
    return at < bytes.size() ? bytes[at++] : 0;
  }

  void take(int marker, Bytes segment) {
    if (isFrame(marker)) return takeFrame(marker, segment);
    if (marker == kJfif && startsWith(segment, "JFIF\0"sv)) return takeJfif(segment);
    if (marker == kExif && startsWith(segment, "Exif\0\0"sv)) exif = tiffTags(segment.subspan(6));
    if (marker == kProfile && startsWith(segment, "ICC_PROFILE\0"sv) && segment.size() > 14)
      header.profile.append(segment.begin() + 14, segment.end());
    if (marker == kAdobe && startsWith(segment, "Adobe"sv)) header.isByAdobe = true;
  }

  // The first three kinds are those that PDF's filter reads: Huffman-coded, not lossless.
  void takeFrame(int marker, Bytes segment) {
    if (segment.size() < 6) return;
    header.shape.height = two(segment, 1);
    header.shape.width = two(segment, 3);
    header.components = segment[5];
    const bool isKnown = header.components == 1 || header.components == 3 || header.components == 4;
    header.isForPDF = marker <= 0xc2 && segment[0] == 8 && isKnown;
  }

  void takeJfif(Bytes segment) {
    if (segment.size() < 12) return;
    const double unit = segment[7] == 1 ? 1 : segment[7] == 2 ? kCentimetresPerInch : 0;
    jfif = {two(segment, 8) * unit, two(segment, 10) * unit};
  }

  std::optional<JpegHeader> finished(std::size_t scan) {
    if (header.shape.width == 0 || header.shape.height == 0) return std::nullopt;
    header.shape.orientation = exif.orientation;
    for (const Density& density : {exif.density, jfif})
      if (isSound(density)) header.shape.density = density;
    constexpr std::array<unsigned char, 2> end{0xff, kEnd};
    const Bytes rest = bytes.subspan(scan);
    header.isWhole = std::search(rest.begin(), rest.end(), end.begin(), end.end()) != rest.end();
    return header;
  }

  Bytes bytes;
  JpegHeader header;
  TiffTags exif;
  Density jfif{0, 0};
};

}  // namespace

bool isJpeg(Bytes bytes) { return startsWith(bytes, "\xff\xd8\xff"sv); }

std::optional<JpegHeader> jpegHeader(Bytes bytes) { return HeaderReader(bytes).read(); }

}  // namespace tavrin
