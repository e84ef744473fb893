#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrin {

// The first character of a text.
struct Character {
  std::string_view bytes;         // that make it up; a single one where it is no character
  std::optional<char32_t> value;  // absent where it is none
};
// The text must not be empty.
Character firstCharacter(std::string_view bytes);

// Whether the bytes are UTF-8 throughout: no stray or missing continuation bytes, no overlong
// forms, no surrogates, nothing above U+10FFFF. True of the empty text. Texts from files are
// checked with this before anything shows or compares them.
bool isUtf8(std::string_view bytes);

// The same text in UTF-8 throughout: each byte that is no part of a character becomes U+FFFD.
std::string validUtf8(std::string_view bytes);

// The bytes of a text in UTF-8 that was cut short, without the character that the cut went through.
std::string_view wholeCharacters(std::string_view bytes);

}  // namespace tavrin
