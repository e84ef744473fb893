#pragma once

#include <string>
#include <string_view>

namespace tavrin {

// The format that leaves it to the print system to find out what a document is.
inline constexpr char kUnknownFormat[] = "application/octet-stream";

// The MIME type of a document that starts with these bytes, of which there is at least one. May be
// called on any thread.
std::string formatOf(std::string_view start);

}  // namespace tavrin
