#pragma once

#include <string>

#include "platform/text/OptionalString.h"

namespace tavrin {

// Shows help books. It exists so that a panel can ask for a page of its printer's help without
// knowing whether a browser, a window of the dialog or a test will show it.
class HelpViewer {
 public:
  virtual ~HelpViewer() = default;

  // The help viewer of this process; before a program has installed one, a viewer that shows
  // nothing.
  static HelpViewer& current();
  // Borrowed; must outlive every panel. Null takes the viewer away.
  static void install(HelpViewer* viewer);

  // AHRegisterHelpBook: makes the book known. The path is as the printer's software names it,
  // without the root folder; the caller has checked that it exists.
  virtual void registerHelpBook(const std::string& path) = 0;

  // AHGotoPage: shows a page of a registered book, its start page when the page is absent.
  virtual void gotoPage(const std::string& book, const OptString& page,
                        const OptString& anchor) = 0;
};

}  // namespace tavrin
