#pragma once

#include <algorithm>
#include <string_view>

// For comparing keywords, option names and tags, whose letter case does not matter. Only ASCII
// letters have a case here, whatever the user's language.

namespace tavrin {

inline char lowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline bool equalIgnoringCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, lowerCase, lowerCase);
}

// The order for sets and maps of such names.
struct LessIgnoringCase {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const {
    return std::ranges::lexicographical_compare(a, b, {}, lowerCase, lowerCase);
  }
};

}  // namespace tavrin
