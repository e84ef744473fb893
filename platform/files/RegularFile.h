#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace tavrin {

// The bytes of a file that somebody else may have put there. Absent if it is missing, unreadable,
// larger than the limit (bytes) or not a regular file: a FIFO or a device in its place is neither
// waited for nor read.
std::optional<std::string> readRegularFile(const std::filesystem::path& file, std::size_t limit);

}  // namespace tavrin
