#pragma once

#include <cstdint>

namespace tavrin {

// How many bytes an open file says that it holds from where it stands. 0 where nobody knows: for
// everything but a regular file, and for those of /proc, which say 0 whatever they hold.
std::uint64_t announcedSize(int descriptor);

}  // namespace tavrin
