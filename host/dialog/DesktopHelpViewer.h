#pragma once

#include <functional>
#include <map>
#include <string>

#include <QUrl>

#include "platform/files/HelpBook.h"
#include "platform/toolkit/HelpViewer.h"

namespace tavrin {

// Shows pages of printers' help books in the person's browser.
class DesktopHelpViewer : public HelpViewer {
 public:
  // Opens an address; false when nothing on this machine can.
  using Opener = std::function<bool(const QUrl&)>;
  // Told why a page could not be shown, in a sentence.
  using Complaint = std::function<void(const std::string&)>;

  explicit DesktopHelpViewer(Opener opener);
  // The desktop's own way to open a page.
  DesktopHelpViewer();

  void setComplaint(Complaint heard) { complaint = std::move(heard); }

  void registerHelpBook(const std::string& path) override;
  void gotoPage(const std::string& book, const OptString& page, const OptString& anchor) override;

 private:
  void complain(const std::string& sentence) const;

  Opener open;
  Complaint complaint;
  std::map<std::string, HelpBook> books;
  std::string latest;  // the book that an empty name stands for
};

}  // namespace tavrin
