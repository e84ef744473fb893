#pragma once

#include <cstddef>
#include <string>

// What a line of a script may cost its parser.

namespace tavrin {

// Longer lines (bytes) are refused, deeper nested ones, and those with more fields: read into
// memory, a line takes many times its length, and an object's fields are looked through one by one.
inline constexpr std::size_t kScriptLineLimit = 1 << 20;
inline constexpr int kNestingLimit = 32;
inline constexpr int kFieldLimit = 4096;

// Which limit the line breaks, as a sentence; empty when it keeps them all.
std::string brokenLimit(const std::string& line);

}  // namespace tavrin
