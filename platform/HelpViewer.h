#pragma once

#include <filesystem>
#include <string>

#include "platform/OptionalString.h"

namespace tavrin {

// Shows help books. It exists so that a panel can ask for a page of its printer's help without
// knowing whether a browser, a window of the dialog or a test looks at it.
class HelpViewer {
 public:
  virtual ~HelpViewer() = default;

  // The help viewer of this process; before a program has installed one, a viewer that shows
  // nothing.
  static HelpViewer& current();
  // Borrowed; must outlive every panel. Null takes the viewer away.
  static void install(HelpViewer* viewer);

  // AHRegisterHelpBook: makes the book known. The path is as the printer's software names it,
  // without the root folder; the caller has seen that something is there.
  virtual void registerHelpBook(const std::string& path) = 0;

  // AHGotoPage: shows a page of a registered book, its start page when the page is absent.
  virtual void gotoPage(const std::string& book, const OptString& page,
                        const OptString& anchor) = 0;
};

// A help book on disk: a folder with HTML pages, or a bundle that holds one.
struct HelpBook {
  std::string name;              // "CFBundleHelpBookName", else the title of the start page
  std::filesystem::path folder;  // where the pages are
  std::filesystem::path startPage;
};

// Reads the book at a folder on this machine, in the user's language where it has pages for it:
// in the folder that "CFBundleHelpBookFolder" names among the bundle's resources, else in the
// resources, else in the folder itself. The start page is index.html, index.htm or the only page,
// and never a file from outside. A book without a start page has an empty one; a
// folder that is no book has an empty name as well.
HelpBook helpBookAt(const std::filesystem::path& folder);

// The file of a page inside the book; empty when the book has no such page or the name leads out
// of the book.
std::filesystem::path helpPage(const HelpBook& book, const OptString& page);

}  // namespace tavrin
