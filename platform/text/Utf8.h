#pragma once

#include <string_view>

namespace tavrin {

// Whether the bytes are UTF-8 throughout: no stray or missing continuation bytes, no overlong
// forms, no surrogates, nothing above U+10FFFF. The empty text is. Texts from files go through
// here before anything shows or compares them.
bool isUtf8(std::string_view bytes);

// The bytes without the beginning of a character that was cut at their end: what is left of a text
// of UTF-8 that had to be made shorter.
std::string_view wholeCharacters(std::string_view bytes);

}  // namespace tavrin
