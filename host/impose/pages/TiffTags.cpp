#include "host/impose/pages/TiffTags.h"

#include <cstdint>

namespace tavrin {

namespace {

constexpr std::size_t kEntrySize = 12;
constexpr std::uint16_t kShort = 3;
constexpr std::uint16_t kRational = 5;
constexpr std::uint16_t kOrientation = 0x112;
constexpr std::uint16_t kDensityX = 0x11a;
constexpr std::uint16_t kDensityY = 0x11b;
constexpr std::uint16_t kDensityUnit = 0x128;
constexpr int kCentimetre = 3;
constexpr double kLeastDensity = 10;
constexpr double kMostDensity = 20'000;

// Numbers in the order of bytes that the file has. What lies beyond the end is 0.
class Numbers {
 public:
  explicit Numbers(Bytes theBytes) : bytes(theBytes) {
    isLittle = bytes.size() > 1 && bytes[0] == 'I' && bytes[1] == 'I';
  }

  std::uint16_t two(std::size_t at) const {
    if (at + 2 > bytes.size()) return 0;
    const int first = bytes[at], second = bytes[at + 1];
    return static_cast<std::uint16_t>(isLittle ? second << 8 | first : first << 8 | second);
  }
  std::uint32_t four(std::size_t at) const {
    const std::uint32_t first = two(at), second = two(at + 2);
    return isLittle ? second << 16 | first : first << 16 | second;
  }
  double ratio(std::size_t at) const {
    const std::uint32_t below = four(at + 4);
    return below == 0 ? 0 : static_cast<double>(four(at)) / below;
  }

 private:
  Bytes bytes;
  bool isLittle;
};

std::size_t placeOf(const Numbers& numbers, int directory) {
  std::size_t place = numbers.four(4);
  for (; directory > 0 && place != 0; --directory)
    place = numbers.four(place + 2 + numbers.two(place) * kEntrySize);
  return place;
}

void readEntry(const Numbers& numbers, std::size_t at, TiffTags& tags, int& unit) {
  const std::uint16_t tag = numbers.two(at);
  const std::uint16_t type = numbers.two(at + 2);
  if (type == kShort) {
    const int value = numbers.two(at + 8);
    if (tag == kOrientation && value >= 1 && value <= 8) tags.orientation = value;
    if (tag == kDensityUnit) unit = value;
  }
  if (type == kRational) {
    if (tag == kDensityX) tags.density.x = numbers.ratio(numbers.four(at + 8));
    if (tag == kDensityY) tags.density.y = numbers.ratio(numbers.four(at + 8));
  }
}

}  // namespace

bool isSound(const Density& density) {
  return density.x >= kLeastDensity && density.y >= kLeastDensity && density.x <= kMostDensity &&
         density.y <= kMostDensity;
}

TiffTags tiffTags(Bytes bytes, int directory) {
  const Numbers numbers(bytes);
  TiffTags tags;
  if (numbers.two(2) != 42) return tags;
  const std::size_t place = placeOf(numbers, directory);
  if (place == 0) return tags;
  int unit = 2;
  for (int entry = 0; entry < numbers.two(place); ++entry)
    readEntry(numbers, place + 2 + entry * kEntrySize, tags, unit);
  if (unit == 1) tags.density = {0, 0};  // only how wide pixels are for their height
  if (unit == kCentimetre) tags.density = {tags.density.x * 2.54, tags.density.y * 2.54};
  return tags;
}

}  // namespace tavrin
