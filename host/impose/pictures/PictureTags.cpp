#include "host/impose/pictures/PictureTags.h"

#include <cmath>
#include <string_view>

#include "host/impose/pictures/StoredNumbers.h"

namespace tavrin {

namespace {

using namespace std::string_view_literals;

constexpr double kMetresPerInch = 0.0254;

// Chunks that are a name and a length, in one order or the other, and then so many bytes.
struct ChunkKind {
  std::size_t first;         // where they begin
  std::size_t nameAt;        // in a chunk
  std::size_t lengthAt;      // in a chunk
  std::size_t extra;         // bytes behind the contents
  std::size_t evenBy;        // what lengths are rounded up to
  std::string_view picture;  // the chunk behind which nothing is looked for
  bool lowestFirst;
};
constexpr ChunkKind kPng{8, 4, 0, 4, 1, "IDAT", false};
constexpr ChunkKind kRiff{12, 0, 4, 0, 2, {}, true};
constexpr std::size_t kChunkHead = 8;

// The contents of the first chunk of that name; empty for none.
Bytes chunk(Bytes file, std::string_view name, const ChunkKind& kind) {
  const StoredNumbers numbers(file, kind.lowestFirst);
  for (std::size_t at = kind.first; at + kChunkHead <= file.size();) {
    const std::size_t length = numbers.four(at + kind.lengthAt);
    const std::size_t start = at + kChunkHead;
    const bool isPicture = !kind.picture.empty() && hasTextAt(file, at + kind.nameAt, kind.picture);
    if (length > file.size() - start || isPicture) return {};
    if (hasTextAt(file, at + kind.nameAt, name)) return file.subspan(start, length);
    at = start + (length + kind.evenBy - 1) / kind.evenBy * kind.evenBy + kind.extra;
  }
  return {};
}

// Some writers put in front what JPEG files need there.
TiffTags exifTags(Bytes exif) {
  return tiffTags(hasTextAt(exif, 0, "Exif\0\0"sv) ? exif.subspan(6) : exif);
}

TiffTags pngTags(Bytes file) {
  TiffTags tags = exifTags(chunk(file, "eXIf", kPng));
  const Bytes density = chunk(file, "pHYs", kPng);
  const StoredNumbers numbers(density, false);
  // Written in pixels per metre, 300 to the inch and the like come back as 299.999.
  const auto perInch = [&](std::size_t at) {
    return std::round(numbers.four(at) * kMetresPerInch * 100) / 100;
  };
  if (density.size() == 9 && density[8] == 1) tags.density = {perInch(0), perInch(4)};
  return tags;
}

}  // namespace

bool isCutOffPng(Bytes file) {
  if (!hasTextAt(file, 0, "\x89PNG"sv)) return false;
  const StoredNumbers numbers(file, kPng.lowestFirst);
  for (std::size_t at = kPng.first; at + kChunkHead <= file.size();) {
    if (hasTextAt(file, at + kPng.nameAt, "IEND")) return false;
    at += kChunkHead + numbers.four(at + kPng.lengthAt) + kPng.extra;
  }
  return true;
}

TiffTags pictureTags(Bytes file, int picture) {
  if (hasTextAt(file, 0, "\x89PNG"sv)) return pngTags(file);
  if (hasTextAt(file, 0, "RIFF") && hasTextAt(file, 8, "WEBP"))
    return exifTags(chunk(file, "EXIF", kRiff));
  return tiffTags(file, picture);
}

}  // namespace tavrin
