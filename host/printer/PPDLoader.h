#pragma once

#include <cstddef>
#include <filesystem>

#include "platform/text/Result.h"
#include "ppd/CupsHandles.h"

// The one way in which the programs get a printer's PPD: loaded, checked and mended.

namespace tavrin {

// Larger files (bytes) are refused, packed or not; for what is in them see PPDLimits.h.
inline constexpr std::size_t kPPDFileLimit = 4 * 1024 * 1024;

// Loads a PPD file, plain or compressed, for a host that hands it to panels. The texts of its
// groups, options and choices are whole UTF-8 characters and its language encoding is never null.
// Nothing is marked, and its text stays with it (sourceOf). Never blocks. The reason names the
// file, and the line where the PPD is bad.
Result<PPDPtr> loadPPD(const std::filesystem::path& file);

// The same for an open file, which stays the caller's and is read from its start; the name is for
// the reason.
Result<PPDPtr> loadPPD(int fileDescriptor, const std::string& name);

}  // namespace tavrin
