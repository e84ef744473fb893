#include "replay/Quoted.h"

namespace tavrin {

std::string quoted(const std::string& text) {
  constexpr std::size_t kLongest = 200;
  if (text.size() <= kLongest) return '"' + text + '"';
  return '"' + text.substr(0, kLongest) + "...\"";
}

}  // namespace tavrin
