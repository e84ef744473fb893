#pragma once

#include <algorithm>
#include <vector>

#include "tests/randomwalk/Plan.h"

namespace tavrin::walk {

// The list without every part that `fails` does not need: halves are tried first, then ever smaller
// parts, single items until none can go any more. `fails` holds for the list that is given and for
// the one that comes back.
template <class T, class Fails>
std::vector<T> fewest(std::vector<T> list, Fails fails) {
  std::size_t part = std::max<std::size_t>(1, list.size() / 2);
  while (!list.empty()) {
    bool smaller = false;
    for (std::size_t begin = 0; begin < list.size();) {
      std::vector<T> rest(list.begin(), list.begin() + static_cast<std::ptrdiff_t>(begin));
      const std::size_t end = std::min(list.size(), begin + part);
      rest.insert(rest.end(), list.begin() + static_cast<std::ptrdiff_t>(end), list.end());
      if (fails(rest)) {
        list = std::move(rest);
        smaller = true;
      } else {
        begin += part;
      }
    }
    if (part == 1 && !smaller) break;
    part = std::max<std::size_t>(1, part / 2);
  }
  return list;
}

// The fewest steps of a failing plan that still fail.
Plan shrunk(const Plan& failing);

}  // namespace tavrin::walk
