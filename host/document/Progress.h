#pragma once

#include <cstdint>
#include <functional>

namespace tavrin {

// How far the work on a document is: bytes done, and bytes in all (0 while nobody knows).
struct Progress {
  std::uint64_t done = 0;
  std::uint64_t total = 0;
};

// Told on the thread that does the work; may be empty.
using ProgressCallback = std::function<void(const Progress&)>;

}  // namespace tavrin
