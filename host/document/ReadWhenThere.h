#pragma once

#include <cstddef>
#include <span>

#include "host/support/Cancellable.h"

namespace tavrin {

// Fills the front of the buffer with the next bytes of an open file, and waits for them where there
// are none yet. Their number; 0 at the end of the file. The reason is the rest of a sentence about
// the file.
Cancellable<std::size_t> readWhenThere(int descriptor, std::span<char> buffer,
                                       const CancelFlag& cancel);

}  // namespace tavrin
