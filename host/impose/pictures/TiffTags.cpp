#include "host/impose/pictures/TiffTags.h"

#include <cstdint>

#include "host/impose/pictures/StoredNumbers.h"

namespace tavrin {

namespace {

constexpr std::size_t kEntrySize = 12;
constexpr std::uint32_t kShort = 3;
constexpr std::uint32_t kRational = 5;
constexpr std::uint32_t kOrientation = 0x112;
constexpr std::uint32_t kDensityX = 0x11a;
constexpr std::uint32_t kDensityY = 0x11b;
constexpr std::uint32_t kDensityUnit = 0x128;
constexpr int kCentimetre = 3;
constexpr double kLeastDensity = 10;
constexpr double kMostDensity = 20'000;

double ratio(const StoredNumbers& numbers, std::size_t at) {
  const std::uint32_t below = numbers.four(at + 4);
  return below == 0 ? 0 : static_cast<double>(numbers.four(at)) / below;
}

std::size_t placeOf(const StoredNumbers& numbers, int directory) {
  std::size_t place = numbers.four(4);
  for (; directory > 0 && place != 0; --directory)
    place = numbers.four(place + 2 + numbers.two(place) * kEntrySize);
  return place;
}

void readEntry(const StoredNumbers& numbers, std::size_t at, TiffTags& tags, int& unit) {
  const std::uint32_t tag = numbers.two(at);
  const std::uint32_t type = numbers.two(at + 2);
  if (type == kShort) {
    const int value = static_cast<int>(numbers.two(at + 8));
    if (tag == kOrientation && value >= 1 && value <= 8) tags.orientation = value;
    if (tag == kDensityUnit) unit = value;
  }
  if (type == kRational) {
    if (tag == kDensityX) tags.density.x = ratio(numbers, numbers.four(at + 8));
    if (tag == kDensityY) tags.density.y = ratio(numbers, numbers.four(at + 8));
  }
}

}  // namespace

bool isSound(const Density& density) {
  return density.x >= kLeastDensity && density.y >= kLeastDensity && density.x <= kMostDensity &&
         density.y <= kMostDensity;
}

TiffTags tiffTags(Bytes bytes, int directory) {
  const StoredNumbers numbers(bytes, hasTextAt(bytes, 0, "II"));
  TiffTags tags;
  if (numbers.two(2) != 42) return tags;
  const std::size_t place = placeOf(numbers, directory);
  if (place == 0) return tags;
  int unit = 2;
  for (std::uint32_t entry = 0; entry < numbers.two(place); ++entry)
    readEntry(numbers, place + 2 + entry * kEntrySize, tags, unit);
  if (unit == 1) tags.density = {0, 0};  // only how wide pixels are for their height
  if (unit == kCentimetre) tags.density = {tags.density.x * 2.54, tags.density.y * 2.54};
  return tags;
}

bool hasMoreThan(int directories, Bytes bytes) {
  const StoredNumbers numbers(bytes, hasTextAt(bytes, 0, "II"));
  return numbers.two(2) == 42 && placeOf(numbers, directories) != 0;
}

}  // namespace tavrin
