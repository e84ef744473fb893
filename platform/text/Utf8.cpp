#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

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

// What the bytes of a sequence of that length mean; absent where they mean nothing.
std::optional<char32_t> valueOf(std::string_view sequence) {
  const auto lead = static_cast<unsigned char>(sequence[0]);
  if (sequence.size() == 1) return lead;
  std::uint32_t value = lead & (0x7FU >> sequence.size());
  for (const unsigned char byte : sequence.substr(1)) {
    if (!isContinuation(byte)) return std::nullopt;
    value = (value << 6) | (byte & 0x3F);
  }
  const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
  if (value < kSmallest[sequence.size()] || value > 0x10FFFF || isSurrogate) return std::nullopt;
  return value;
}

}  // namespace

Character firstCharacter(std::string_view bytes) {
  const std::size_t length = sequenceLength(static_cast<unsigned char>(bytes[0]));
  if (length == 0 || length > bytes.size()) return {bytes.substr(0, 1), std::nullopt};
  const std::string_view sequence = bytes.substr(0, length);
  const auto value = valueOf(sequence);
  return {value ? sequence : bytes.substr(0, 1), value};
}

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const Character next = firstCharacter(bytes);
    if (!next.value) return false;
    bytes.remove_prefix(next.bytes.size());
  }
  return true;
}

std::string validUtf8(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const Character next = firstCharacter(bytes);
    text += next.value ? next.bytes : "\uFFFD";
    bytes.remove_prefix(next.bytes.size());
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
