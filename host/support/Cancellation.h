#pragma once

#include <atomic>
#include <chrono>

namespace tavrin {

// Set by one thread to make another give up soon.
using CancelFlag = std::atomic<bool>;

// The flag of work that nobody cancels.
const CancelFlag& neverCancelled();

// How long to wait for somebody who says nothing.
using Patience = std::chrono::milliseconds;

}  // namespace tavrin
