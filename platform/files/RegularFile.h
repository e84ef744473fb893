#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace tavrin {

// The bytes of a file that somebody else may have put there. Absent for one that is missing,
// unreadable, larger than the limit (bytes), or no regular file: a FIFO or a device in its place
// is not waited for, and nothing is read from it.
std::optional<std::string> readRegularFile(const std::filesystem::path& file, std::size_t limit);

}  // namespace tavrin
