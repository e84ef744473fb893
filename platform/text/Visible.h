#pragma once

#include <string>
#include <string_view>

// Texts of strangers on their way to a terminal or a log, where some characters act instead of
// being seen: they move the cursor, give orders to the terminal, or turn the reading direction
// around. These write such a character as \u and four digits, and a byte that is no UTF-8 as \x and
// two. Every text that a program writes to a terminal or a log goes through here.

namespace tavrin {

// For one line: a line break is one of those characters.
std::string visible(std::string_view text);

// For a text whose line breaks are its own.
std::string visibleLines(std::string_view text);

}  // namespace tavrin
