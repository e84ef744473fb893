#pragma once

#include <filesystem>

namespace tavrin {

// Whether a file is in a folder or below it once every symbolic link is followed; false if either
// of them is missing.
bool isInside(const std::filesystem::path& file, const std::filesystem::path& folder);

}  // namespace tavrin
