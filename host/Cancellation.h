#pragma once

#include <atomic>

namespace tavrin {

// Set by one thread to make another give up soon.
using CancelFlag = std::atomic<bool>;

// The flag of work that nobody cancels.
const CancelFlag& neverCancelled();

}  // namespace tavrin
