#pragma once

#include <string>

namespace tavrin {

// A PDF of that many pages in US Letter, each with its number and a mark in one corner, so that it
// shows when a page is missing, mirrored or upside down.
std::string numberedPDF(int pages);

}  // namespace tavrin
