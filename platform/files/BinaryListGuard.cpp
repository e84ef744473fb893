#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "platform/files/PropertyListGuard.h"

namespace tavrin {
namespace {

constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kTrailerSize = 32;
// Real lists nest a handful of times. A limit on depth also ends every cycle, and libplist
// compares each object with all that it lies in.
constexpr int kDepthLimit = 32;
// What a list may grow to in memory, and about how much of that an object takes besides its bytes.
constexpr std::size_t kGrowthLimit = 4 * 1024 * 1024;
constexpr std::size_t kObjectSize = 128;

enum Kind : unsigned {
  kNumber = 1,
  kReal = 2,
  kDate = 3,
  kData = 4,
  kAscii = 5,
  kUtf16 = 6,
  kUid = 8,
  kArray = 10,
  kSet = 12,
  kDictionary = 13
};

// An object as its first byte and, for the longer ones, a length after it say.
struct Object {
  unsigned kind = 0;
  std::uint64_t count = 0;  // bytes, characters, elements or entries
  std::size_t body = 0;     // where they start
};

class BinaryList {
 public:
  explicit BinaryList(std::string_view list) : bytes(list) {}

  bool isHarmless() { return readTrailer() && visit(rootObject, 0); }

 private:
  bool readTrailer();
  bool visit(std::uint64_t index, int depth);
  bool visitParts(const Object& object, int depth);
  bool readObject(std::uint64_t index, Object& object) const;
  bool readCount(Object& object) const;
  bool charge(std::size_t size);
  bool hasNul(const Object& object, std::size_t characterSize) const;

  // Whether that many bytes lie before the offset table.
  bool holds(std::size_t at, std::uint64_t size) const {
    return at <= offsetTable && size <= offsetTable - at;
  }
  std::uint64_t number(std::size_t at, std::size_t size) const;

  std::string_view bytes;
  std::size_t offsetSize = 0;
  std::size_t referenceSize = 0;
  std::uint64_t objects = 0;
  std::uint64_t rootObject = 0;
  std::size_t offsetTable = 0;
  std::size_t growth = 0;
};

// A big-endian number of at most eight bytes.
std::uint64_t BinaryList::number(std::size_t at, std::size_t size) const {
  std::uint64_t value = 0;
  for (const unsigned char byte : bytes.substr(at, size)) value = (value << 8) | byte;
  return value;
}

bool BinaryList::readTrailer() {
  if (bytes.size() < kHeaderSize + kTrailerSize) return false;
  const std::size_t trailer = bytes.size() - kTrailerSize;
  offsetSize = number(trailer + 6, 1);
  referenceSize = number(trailer + 7, 1);
  objects = number(trailer + 8, 8);
  rootObject = number(trailer + 16, 8);
  const std::uint64_t table = number(trailer + 24, 8);
  if (offsetSize < 1 || offsetSize > 8 || referenceSize < 1 || referenceSize > 8) return false;
  if (table < kHeaderSize || table > trailer) return false;
  offsetTable = static_cast<std::size_t>(table);
  return objects <= (trailer - offsetTable) / offsetSize;
}

bool BinaryList::charge(std::size_t size) {
  growth += kObjectSize + size;
  return growth <= kGrowthLimit;
}

// libplist ends the program over a key with a NUL inside, and cuts other texts there.
bool BinaryList::hasNul(const Object& text, std::size_t characterSize) const {
  for (std::uint64_t i = 0; i < text.count; ++i) {
    if (number(text.body + i * characterSize, characterSize) == 0) return true;
  }
  return false;
}

bool BinaryList::readCount(Object& object) const {
  if (!holds(object.body, 1)) return false;
  const std::uint64_t marker = number(object.body, 1);
  const std::size_t size = std::size_t{1} << (marker & 0xF);
  if (marker >> 4 != kNumber || size > 8 || !holds(object.body + 1, size)) return false;
  object.count = number(object.body + 1, size);
  object.body += 1 + size;
  return true;
}

bool BinaryList::readObject(std::uint64_t index, Object& object) const {
  if (index >= objects) return false;
  const std::uint64_t at = number(offsetTable + index * offsetSize, offsetSize);
  if (at < kHeaderSize || at >= offsetTable) return false;
  const std::uint64_t marker = number(at, 1);
  object = {static_cast<unsigned>(marker >> 4), marker & 0xF, static_cast<std::size_t>(at) + 1};
  const bool hasCount = object.kind >= kData && object.kind != kUid;
  return !hasCount || object.count < 0xF || readCount(object);
}

// Objects are followed wherever they are used, shared ones each time anew, because libplist copies
// them there.
bool BinaryList::visit(std::uint64_t index, int depth) {
  Object object;
  if (depth > kDepthLimit || !readObject(index, object)) return false;
  switch (object.kind) {
    case kNumber:
    case kReal:
    case kDate:
      return object.count <= 4 && holds(object.body, 1U << object.count) && charge(0);
    case kUid:
      return holds(object.body, object.count + 1) && charge(0);
    case kData:
      return holds(object.body, object.count) && charge(object.count);
    case kAscii:
      return holds(object.body, object.count) && charge(object.count) && !hasNul(object, 1);
    case kUtf16:
      // Two bytes a character become at most three, in a buffer of four.
      return object.count <= bytes.size() && holds(object.body, object.count * 2) &&
             charge(object.count * 4) && !hasNul(object, 2);
    case kArray:
    case kSet:
    case kDictionary:
      return charge(0) && visitParts(object, depth);
    default:
      return object.kind == 0 && charge(0);
  }
}

bool BinaryList::visitParts(const Object& object, int depth) {
  if (object.count > bytes.size()) return false;
  const std::uint64_t parts = object.kind == kDictionary ? object.count * 2 : object.count;
  if (!holds(object.body, parts * referenceSize)) return false;
  for (std::uint64_t i = 0; i < parts; ++i) {
    if (!visit(number(object.body + i * referenceSize, referenceSize), depth + 1)) return false;
  }
  return true;
}

}  // namespace

bool isHarmlessBinaryList(std::string_view bytes) { return BinaryList(bytes).isHarmless(); }

}  // namespace tavrin
