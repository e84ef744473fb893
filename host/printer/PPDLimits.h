#pragma once

#include <cstddef>
#include <string>

#include <cups/file.h>

// What a PPD may cost its parser. For much of what a PPD states libcups looks through all that came
// before it, so that a file of a few megabytes could take minutes.

namespace tavrin {

// The bytes of the text, unpacked.
inline constexpr std::size_t kPPDTextLimit = 16 * 1024 * 1024;
// The statements in all, and those of one keyword. Real PPDs stay well below, but for the
// constraints between two choices, which are quick to read and not counted.
inline constexpr std::size_t kPPDStatementLimit = 50'000;
inline constexpr std::size_t kPPDKeywordLimit = 2'000;

// Which limit the text breaks, as the end of a sentence: "unpacks to more than 16 MiB"; empty when
// it keeps them all. Reads on from where the file stands, and appends to `lines` what it reads.
std::string brokenPPDLimit(cups_file_t& text, std::string& lines);

}  // namespace tavrin
