#pragma once

#include <cstdint>
#include <string_view>

#include "host/impose/pictures/MappedFile.h"

namespace tavrin {

// Numbers that are stored among bytes, with the lowest byte first or last. What lies beyond the end
// is 0.
class StoredNumbers {
 public:
  StoredNumbers(Bytes theBytes, bool lowestFirst) : bytes(theBytes), isLittle(lowestFirst) {}

  std::uint32_t two(std::size_t at) const {
    if (at >= bytes.size() || bytes.size() - at < 2) return 0;
    const std::uint32_t first = bytes[at], second = bytes[at + 1];
    return isLittle ? second << 8 | first : first << 8 | second;
  }
  std::uint32_t four(std::size_t at) const {
    const std::uint32_t first = two(at), second = two(at + 2);
    return isLittle ? second << 16 | first : first << 16 | second;
  }

 private:
  Bytes bytes;
  bool isLittle;
};

inline bool hasTextAt(Bytes bytes, std::size_t at, std::string_view text) {
  if (at > bytes.size() || bytes.size() - at < text.size()) return false;
  for (std::size_t index = 0; index < text.size(); ++index)
    if (bytes[at + index] != static_cast<unsigned char>(text[index])) return false;
  return true;
}

}  // namespace tavrin
