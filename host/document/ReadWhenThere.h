#pragma once

#include <cstddef>
#include <span>

#include "host/support/Cancellable.h"

namespace tavrin {

// Fills the front of the buffer with the next bytes of an open file that are there already. Their
// number; 0 at the end of the file. The reason is the rest of a sentence about the file.
Cancellable<std::size_t> readAtOnce(int descriptor, std::span<char> buffer);

// The same, but waits for the bytes where there are none yet, unless the file is a regular one:
// there, nobody writes for a reader who waits (/proc/kmsg would wait for ever).
Cancellable<std::size_t> readWhenThere(int descriptor, std::span<char> buffer,
                                       const CancelFlag& cancel);

}  // namespace tavrin
