#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <QUrl>

#include "platform/files/HelpBook.h"
#include "platform/toolkit/HelpViewer.h"

namespace tavrin {

// Where help may lie: the folders with plug-ins, and that of the printers' software below the root
// folder of this moment.
std::vector<std::filesystem::path> foldersWithHelp();

// Shows pages of printers' help books in the person's browser.
class DesktopHelpViewer : public HelpViewer {
 public:
  // Opens an address; false when nothing on this machine can.
  using Opener = std::function<bool(const QUrl&)>;
  // Told why a page could not be shown, in a sentence.
  using Complaint = std::function<void(const std::string&)>;

  // Shows the books in these folders, links followed, and nothing else: the path of a book comes
  // from a printer's file, which could name any folder.
  DesktopHelpViewer(std::vector<std::filesystem::path> folders, Opener opener);
  // Shows the books where help may lie, and opens pages in the desktop's own way.
  DesktopHelpViewer();

  void setComplaint(Complaint heard) { complaint = std::move(heard); }

  void registerHelpBook(const std::string& path) override;
  void gotoPage(const std::string& book, const OptString& page, const OptString& anchor) override;

 private:
  bool mayShow(const std::filesystem::path& place) const;
  void complain(const std::string& sentence) const;

  std::vector<std::filesystem::path> folders;
  Opener open;
  Complaint complaint;
  std::map<std::string, HelpBook> books;
  std::string latest;  // the book that an empty name stands for
};

}  // namespace tavrin
