#include "platform/toolkit/HelpViewer.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

class RecordingViewer final : public HelpViewer {
 public:
  void registerHelpBook(const std::string& path) override { registered = path; }
  void gotoPage(const std::string&, const OptString&, const OptString&) override {}

  std::string registered;
};

TEST(HelpViewer, BeforeOneIsInstalledNothingIsShown) {
  HelpViewer::current().registerHelpBook("/Library/Printers/Help");
  HelpViewer::current().gotoPage("Book", "page.html", std::nullopt);
}

TEST(HelpViewer, IsTheOneThatTheProgramInstalled) {
  RecordingViewer viewer;
  HelpViewer::install(&viewer);
  HelpViewer::current().registerHelpBook("/Library/Printers/Help");
  EXPECT_EQ(viewer.registered, "/Library/Printers/Help");
  HelpViewer::install(nullptr);
  EXPECT_NE(&HelpViewer::current(), &viewer);
}

}  // namespace
}  // namespace tavrin
