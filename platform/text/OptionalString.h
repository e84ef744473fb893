#pragma once

#include <optional>
#include <string>

namespace tavrin {

// A UTF-8 text that may be absent. Absent is not the empty text: it is the answer of a failed
// lookup.
using OptString = std::optional<std::string>;

// Whether both texts are there and equal. An absent text equals nothing, not even another absent
// text, so do not compare two optional texts with ==.
inline bool sameText(const OptString& a, const OptString& b) { return a && b && *a == *b; }

// The number that a text starts with: leading blanks, a sign, decimal digits; whatever follows is
// ignored. 0 for an absent text and for one that does not start with a number; a number that an int
// cannot hold becomes the nearest one that it can.
int integerValue(const OptString& text);

}  // namespace tavrin
