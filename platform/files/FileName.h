#pragma once

#include <string_view>

namespace tavrin {

// Whether a text from a file is just the name of a file or folder: not empty, not a path, not
// hidden (which rules out "." and "..") and without a NUL. Only such a name is appended to a path:
// it cannot lead out of the folder.
inline bool isPlainFileName(std::string_view name) {
  constexpr std::string_view kForbidden("/\0", 2);
  return !name.empty() && name.front() != '.' &&
         name.find_first_of(kForbidden) == std::string_view::npos;
}

}  // namespace tavrin
