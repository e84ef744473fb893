#include "platform/files/HelpBook.h"

#include <cstddef>
#include <optional>
#include <system_error>
#include <vector>

#include "platform/files/Bundle.h"
#include "platform/files/FileName.h"
#include "platform/files/HtmlTitle.h"
#include "platform/files/InsideFolder.h"
#include "platform/files/RegularFile.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPageSizeLimit = 1024 * 1024;
// A book folder inside a bundle may be a bundle again; nothing goes deeper.
constexpr int kBundleDepth = 2;

// The file of that name in the folder; empty if there is none or it really lies elsewhere.
fs::path pageIn(const fs::path& folder, const fs::path& name) {
  fs::path file = folder / name;
  std::error_code failure;
  return fs::is_regular_file(file, failure) && isInside(file, folder) ? file : fs::path();
}

// The folder's only HTML page; empty if it has none or several.
fs::path onlyPage(const fs::path& folder) {
  fs::path only;
  std::error_code failure;
  fs::directory_iterator entry(folder, failure);
  for (; !failure && entry != fs::directory_iterator(); entry.increment(failure)) {
    if (entry->path().extension() != ".html") continue;
    if (!only.empty()) return {};
    only = entry->path();
  }
  return only.empty() ? fs::path() : pageIn(folder, only.filename());
}

fs::path startPageIn(const fs::path& folder) {
  for (const char* name : {"index.html", "index.htm"}) {
    fs::path page = pageIn(folder, name);
    if (!page.empty()) return page;
  }
  return onlyPage(folder);
}

// Where a bundle keeps what depends on the language. English comes last, for books that have no
// neutral pages.
std::vector<fs::path> resourceFolders(const fs::path& bundle) {
  const fs::path resources = bundle / "Contents" / "Resources";
  std::vector<fs::path> folders;
  for (const std::string& language : userLanguages()) {
    folders.push_back(resources / (language + ".lproj"));
  }
  folders.push_back(resources);
  folders.push_back(resources / "en.lproj");
  return folders;
}

// The start page of the book in a folder that is a bundle or holds the pages itself.
fs::path findStartPage(const fs::path& folder, int depth = 1) {
  const OptString bookFolder = Bundle::atPath(folder).info("CFBundleHelpBookFolder");
  const std::vector<fs::path> resources = resourceFolders(folder);
  if (bookFolder && isPlainFileName(*bookFolder) && depth < kBundleDepth) {
    for (const fs::path& place : resources) {
      fs::path page = findStartPage(place / *bookFolder, depth + 1);
      if (!page.empty()) return page;
    }
  }
  for (const fs::path& place : resources) {
    fs::path page = startPageIn(place);
    if (!page.empty()) return page;
  }
  return startPageIn(folder);
}

std::string titleOf(const fs::path& page) {
  const auto html = readRegularFile(page, kPageSizeLimit);
  return html ? htmlTitle(*html).value_or("") : "";
}

}  // namespace

HelpBook helpBookAt(const fs::path& folder) {
  if (folder.empty()) return {};
  const OptString name = Bundle::atPath(folder).info("CFBundleHelpBookName");
  HelpBook book;
  const fs::path page = findStartPage(folder);
  // A folder of the book may be a link to anywhere.
  if (!page.empty() && isInside(page, folder)) {
    book.startPage = page;
    book.folder = page.parent_path();
  }
  book.name = name ? *name : titleOf(book.startPage);
  return book;
}

fs::path helpPage(const HelpBook& book, const OptString& page) {
  if (!page) return book.startPage;
  const fs::path name(*page);
  if (book.folder.empty() || name.is_absolute()) return {};
  if (page->find('\0') != std::string::npos) return {};
  return pageIn(book.folder, name);
}

}  // namespace tavrin
