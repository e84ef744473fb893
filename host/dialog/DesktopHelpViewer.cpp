#include "host/dialog/DesktopHelpViewer.h"

#include <algorithm>

#include <QDesktopServices>

#include "host/panels/TrustedBundles.h"
#include "platform/files/InsideFolder.h"
#include "platform/files/RootFolder.h"

namespace tavrin {

namespace fs = std::filesystem;

std::vector<fs::path> foldersWithHelp() {
  std::vector<fs::path> folders = trustedPlugInFolders();
  folders.push_back(pathBelowRoot("/Library/Printers"));
  return folders;
}

DesktopHelpViewer::DesktopHelpViewer(std::vector<fs::path> theFolders, Opener opener)
    : folders(std::move(theFolders)), open(std::move(opener)) {}

DesktopHelpViewer::DesktopHelpViewer()
    : DesktopHelpViewer(foldersWithHelp(), &QDesktopServices::openUrl) {}

void DesktopHelpViewer::registerHelpBook(const std::string& path) {
  const fs::path place = pathBelowRoot(path);
  HelpBook book = mayShow(place) ? helpBookAt(place) : HelpBook();
  latest = book.name;
  if (!book.name.empty()) books.insert_or_assign(book.name, std::move(book));
}

bool DesktopHelpViewer::mayShow(const fs::path& place) const {
  return std::ranges::any_of(folders,
                             [&](const fs::path& folder) { return isInside(place, folder); });
}

void DesktopHelpViewer::gotoPage(const std::string& book, const OptString& page,
                                 const OptString& anchor) {
  // A driver bundle need not name its book; an empty name means the book that was registered last.
  const auto found = books.find(book.empty() ? latest : book);
  const fs::path file = found == books.end() ? fs::path() : helpPage(found->second, page);
  if (file.empty())
    return complain(
        "The help of this printer was not found. Installing the printer's software "
        "again brings it back.");
  QUrl address = QUrl::fromLocalFile(QString::fromStdString(file.string()));
  if (anchor) address.setFragment(QString::fromStdString(*anchor));
  if (!open(address))
    complain("No program on this computer shows the printer's help. It is in the file " +
             file.string() + ".");
}

void DesktopHelpViewer::complain(const std::string& sentence) const {
  if (complaint) complaint(sentence);
}

}  // namespace tavrin
