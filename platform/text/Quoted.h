#pragma once

#include <string>

namespace tavrin {

// A text in quotation marks, for a sentence; a long one is cut between two characters of UTF-8 and
// ends in dots.
std::string quoted(const std::string& text);

}  // namespace tavrin
