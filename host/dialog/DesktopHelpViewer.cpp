#include "host/dialog/DesktopHelpViewer.h"

#include <QDesktopServices>

#include "platform/files/RootFolder.h"

namespace tavrin {

DesktopHelpViewer::DesktopHelpViewer(Opener opener) : open(std::move(opener)) {}

DesktopHelpViewer::DesktopHelpViewer() : DesktopHelpViewer(&QDesktopServices::openUrl) {}

void DesktopHelpViewer::registerHelpBook(const std::string& path) {
  HelpBook book = helpBookAt(pathBelowRoot(path));
  if (book.name.empty()) return;
  latest = book.name;
  books.insert_or_assign(book.name, std::move(book));
}

void DesktopHelpViewer::gotoPage(const std::string& book, const OptString& page,
                                 const OptString& anchor) {
  // A driver bundle need not name its book; an empty name means the book that was registered last.
  const auto found = books.find(book.empty() ? latest : book);
  const std::filesystem::path file =
      found == books.end() ? std::filesystem::path() : helpPage(found->second, page);
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
