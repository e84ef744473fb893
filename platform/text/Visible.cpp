#include "platform/text/Visible.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "platform/text/Utf8.h"

namespace tavrin {
namespace {

struct Range {
  char32_t first, last;
};

// Controls, what separates lines, and what turns the reading direction around or ends that.
constexpr std::array<Range, 7> kActing{{{0x00, 0x1F},
                                        {0x7F, 0x9F},
                                        {0x061C, 0x061C},
                                        {0x200E, 0x200F},
                                        {0x2028, 0x202E},
                                        {0x2066, 0x206F},
                                        {0xFFF9, 0xFFFB}}};

bool acts(char32_t character) {
  return std::ranges::any_of(kActing, [=](const Range& range) {
    return range.first <= character && character <= range.last;
  });
}

std::string escape(const char* form, unsigned value) {
  std::array<char, 8> text;
  std::snprintf(text.data(), text.size(), form, value);
  return text.data();
}

std::string visible(std::string_view text, bool keepsLineBreaks) {
  std::string shown;
  while (!text.empty()) {
    const Character next = firstCharacter(text);
    text.remove_prefix(next.bytes.size());
    if (!next.value)
      shown += escape("\\x%02x", static_cast<unsigned char>(next.bytes[0]));
    else if (acts(*next.value) && !(keepsLineBreaks && next.value == U'\n'))
      shown += escape("\\u%04x", static_cast<unsigned>(*next.value));
    else
      shown += next.bytes;
  }
  return shown;
}

}  // namespace

std::string visible(std::string_view text) { return visible(text, false); }

std::string visibleLines(std::string_view text) { return visible(text, true); }

}  // namespace tavrin
