#include "host/dialog/DesktopHelpViewer.h"

#include <gtest/gtest.h>

#include "host/panels/TrustedBundles.h"
#include "platform/files/RootFolder.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

class DesktopHelpViewerTest : public testing::Test {
 protected:
  DesktopHelpViewerTest() {
    place.write("Library/Book/index.html", "<html><head><title>R420 Help</title></head></html>");
    place.write("Library/Book/PrintDialog.html", "<html><head><title>Page</title></head></html>");
    setRootFolder(place.path());
    viewer.setComplaint([this](const std::string& sentence) { complaint = sentence; });
  }
  ~DesktopHelpViewerTest() override { setRootFolder({}); }

  std::string opened() const { return address.path().section('/', -1).toStdString(); }

  test::TemporaryFolder place;
  QUrl address;
  bool opens = true;
  std::string complaint;
  DesktopHelpViewer viewer{{place.path() / "Library"}, [this](const QUrl& url) {
                             address = url;
                             return opens;
                           }};
};

TEST_F(DesktopHelpViewerTest, OpensAPageOfARegisteredBook) {
  viewer.registerHelpBook("/Library/Book");
  viewer.gotoPage("R420 Help", "PrintDialog.html", "paper");
  EXPECT_EQ(opened(), "PrintDialog.html");
  EXPECT_EQ(address.fragment(), "paper");
  EXPECT_EQ(complaint, "");
}

TEST_F(DesktopHelpViewerTest, OpensTheStartPageWithoutAPage) {
  viewer.registerHelpBook("/Library/Book");
  viewer.gotoPage("R420 Help", std::nullopt, std::nullopt);
  EXPECT_EQ(opened(), "index.html");
  address.clear();
  viewer.gotoPage("", std::nullopt, std::nullopt);
  EXPECT_EQ(opened(), "index.html") << "the empty name is the book that was registered last";
}

TEST_F(DesktopHelpViewerTest, SaysWhatCannotBeShown) {
  viewer.gotoPage("R420 Help", std::nullopt, std::nullopt);
  EXPECT_NE(complaint.find("not found"), std::string::npos);
  viewer.registerHelpBook("/Library/Book");
  opens = false;
  viewer.gotoPage("R420 Help", "PrintDialog.html", std::nullopt);
  EXPECT_NE(complaint.find("PrintDialog.html"), std::string::npos);
}

TEST_F(DesktopHelpViewerTest, OpensNothingOutsideTheBook) {
  place.write("Library/secret.html", "<html></html>");
  viewer.registerHelpBook("/Library/Book");
  viewer.gotoPage("R420 Help", "../secret.html", std::nullopt);
  EXPECT_TRUE(address.isEmpty());
  EXPECT_NE(complaint, "");
}

TEST_F(DesktopHelpViewerTest, ShowsNoBookOutsideOfItsFolders) {
  place.write("home/ada/index.html", "<html><head><title>Diary</title></head></html>");
  std::filesystem::create_directory_symlink("../home/ada", place.path() / "Library/Link");
  for (const char* path : {"/home/ada", "/Library/Link"}) {
    viewer.registerHelpBook(path);
    viewer.gotoPage("Diary", std::nullopt, std::nullopt);
    EXPECT_TRUE(address.isEmpty()) << path;
    EXPECT_EQ(complaint,
              "The help of this printer was not found. Installing the printer's software again "
              "brings it back.");
  }
}

TEST_F(DesktopHelpViewerTest, ShowsNoOtherPrintersHelpInPlaceOfAMissingOne) {
  viewer.registerHelpBook("/Library/Book");
  viewer.registerHelpBook("/home");
  viewer.gotoPage("", std::nullopt, std::nullopt);
  EXPECT_TRUE(address.isEmpty());
  EXPECT_NE(complaint.find("not found"), std::string::npos);
}

TEST_F(DesktopHelpViewerTest, MayShowWhatPrintersSoftwareAndPlugInsBring) {
  auto expected = trustedPlugInFolders();
  expected.push_back(place.path() / "Library/Printers");
  EXPECT_EQ(foldersWithHelp(), expected);
}

}  // namespace
}  // namespace tavrin
