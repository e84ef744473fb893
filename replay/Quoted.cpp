#include "replay/Quoted.h"

namespace tavrin {
namespace {

bool isInsideCharacter(char utf8) { return (utf8 & 0xC0) == 0x80; }

}  // namespace

std::string quoted(const std::string& text) {
  constexpr std::size_t kLongest = 200;
  std::size_t length = kLongest;
  if (text.size() <= kLongest) return '"' + text + '"';
  while (length > 0 && isInsideCharacter(text[length])) --length;
  return '"' + text.substr(0, length) + "...\"";
}

}  // namespace tavrin
