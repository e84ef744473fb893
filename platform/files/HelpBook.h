#pragma once

#include <filesystem>
#include <string>

#include "platform/text/OptionalString.h"

namespace tavrin {

// A help book on disk: a folder with HTML pages, or a bundle that holds one.
struct HelpBook {
  std::string name;              // "CFBundleHelpBookName", else the title of the start page
  std::filesystem::path folder;  // where the pages are
  std::filesystem::path startPage;
};

// Reads the book at a folder on this machine, in the user's language where it has pages for it:
// in the folder that "CFBundleHelpBookFolder" names among the bundle's resources, else in the
// resources, else in the folder itself. The start page is index.html, index.htm or the only page,
// and never a file from outside. It is empty for a book without one; for a folder that is not a
// book, and for the empty path, which names nothing, so is the name.
HelpBook helpBookAt(const std::filesystem::path& folder);

// The file of a page inside the book; empty if the book has no such page or the name leads out of
// the book.
std::filesystem::path helpPage(const HelpBook& book, const OptString& page);

}  // namespace tavrin
