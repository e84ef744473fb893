#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace tavrin {
namespace {

// The number of bytes in the sequence that a byte starts; 0 for a byte that cannot start one.
std::size_t sequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead < 0xC2) return 0;
  if (lead < 0xE0) return 2;
  if (lead < 0xF0) return 3;
  return lead < 0xF5 ? 4 : 0;
}

bool isContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// The smallest character that needs a sequence of that many bytes.
constexpr std::array<std::uint32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};

bool isSequence(std::string_view bytes) {
  const auto lead = static_cast<unsigned char>(bytes[0]);
  if (bytes.size() == 1) return true;
  std::uint32_t character = lead & (0x7FU >> bytes.size());
  for (const unsigned char byte : bytes.substr(1)) {
    if (!isContinuation(byte)) return false;
    character = (character << 6) | (byte & 0x3F);
  }
  const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
  return character >= kSmallest[bytes.size()] && character <= 0x10FFFF && !isSurrogate;
}

// The number of bytes in the character that they begin with; 0 where they begin with none.
std::size_t characterLength(std::string_view bytes) {
  const std::size_t length = sequenceLength(static_cast<unsigned char>(bytes[0]));
  const bool isWhole = length > 0 && length <= bytes.size();
  return isWhole && isSequence(bytes.substr(0, length)) ? length : 0;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = characterLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

std::string validUtf8(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const std::size_t length = characterLength(bytes);
    text += length > 0 ? bytes.substr(0, length) : "\uFFFD";
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return text;
}

std::string_view wholeCharacters(std::string_view bytes) {
  std::size_t continuations = 0;
  while (continuations < std::min<std::size_t>(3, bytes.size()) &&
         isContinuation(static_cast<unsigned char>(bytes[bytes.size() - 1 - continuations])))
    ++continuations;
  if (continuations == bytes.size()) return bytes;
  const std::size_t lead = bytes.size() - 1 - continuations;
  const bool isCut = lead + sequenceLength(static_cast<unsigned char>(bytes[lead])) > bytes.size();
  return isCut ? bytes.substr(0, lead) : bytes;
}

}  // namespace tavrin
