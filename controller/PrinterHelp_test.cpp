#include "controller/PrinterHelp.h"

#include <filesystem>
#include <fstream>

#include "platform/files/RootFolder.h"
#include "tests/fixtures/ControllerTest.h"
#include "tests/fixtures/CurrentFolder.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

// Help books below a root of the test's own.
class Help : public ControllerTest {
 protected:
  Help() { setRootFolder(root); }
  ~Help() override { setRootFolder({}); }

  void makeFolder(const std::string& path) { std::filesystem::create_directories(root / path); }

  void makeDriver(const std::string& path, const std::string& entries) {
    makeFolder(path + "/Contents");
    std::ofstream(root / path / "Contents/Info.plist")
        << "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict>" << entries
        << "</dict></plist>";
  }

  // Whether the dialog should show its own help for a printer with these attributes.
  bool dialogHelpWanted(const std::vector<std::string>& attributes) {
    start(makePPD({}, attributes));
    return controller->shouldShowDefaultHelp();
  }

  const test::TemporaryFolder folder;
  const std::filesystem::path root = folder.path();
  FakeHelpViewer viewer;
};

TEST_F(Help, OfAnOlderModelIsABookOfItsOwn) {
  makeFolder("Help");
  EXPECT_FALSE(dialogHelpWanted({"*ModelName: \"Tavrin P100\"",
                                 "*TavDriverPath: \"/Library/Printers/Tavrin/2006/X\"",
                                 "*TavHelpPath: \"/Help\""}));
  EXPECT_EQ(viewer.books, std::vector<std::string>{"Tavrin P100 Help"});
  EXPECT_EQ(viewer.pages, std::vector<OptString>{"PrintDialog.html"});
}

TEST_F(Help, OfOneModelHasAShorterName) {
  makeFolder("Help");
  EXPECT_FALSE(dialogHelpWanted({"*ModelName: \"Tavrin R420 Series\"", "*TavHelpPath: \"/Help\""}));
  EXPECT_FALSE(dialogHelpWanted({"*ModelName: \"Tavrin 420 Series\"", "*TavHelpPath: \"/Help\""}));
  EXPECT_FALSE(dialogHelpWanted({"*ModelName: \"Tavrin R421 Series\"", "*TavHelpPath: \"/Help\""}));
  EXPECT_FALSE(dialogHelpWanted({"*ModelName: \"Tavrin R420\"", "*TavHelpPath: \"/Help\""}));
  EXPECT_EQ(viewer.books,
            (std::vector<std::string>{"Tavrin 420 Series Help", "Tavrin 420 Series Help",
                                      "Tavrin R421 Series Help", "Tavrin R420 Help"}));
}

TEST_F(Help, OfANewerModelComesWithItsDriver) {
  const std::string driver = "/Library/Printers/Tavrin/2008/Drv.bundle";
  makeDriver(driver.substr(1), "<key>CFBundleHelpBookName</key><string>P800 Book</string>");
  EXPECT_FALSE(dialogHelpWanted({"*TavDriverPath: \"" + driver + "\""}));
  EXPECT_EQ(viewer.books, std::vector<std::string>{"P800 Book"});
  EXPECT_EQ(viewer.pages, std::vector<OptString>{std::nullopt});
}

TEST_F(Help, OfTheDriversFolderIsLikeANewerModels) {
  const std::string driver = "/Library/Printers/Tavrin/Drivers/Printer.plugin";
  makeDriver(driver.substr(1), "<key>CFBundleHelpBookName</key><string>Book</string>");
  EXPECT_FALSE(dialogHelpWanted({"*TavDriverPath: \"" + driver + "\""}));
  EXPECT_EQ(viewer.books, std::vector<std::string>{"Book"});
  EXPECT_EQ(viewer.pages, std::vector<OptString>{std::nullopt});
}

TEST_F(Help, OfADriverWithoutABookNameHasNone) {
  const std::string driver = "/Library/Printers/Tavrin/2007/Drv";
  makeFolder(driver.substr(1));
  EXPECT_FALSE(dialogHelpWanted({"*TavDriverPath: \"" + driver + "\""}));
  makeDriver(driver.substr(1), "");
  EXPECT_FALSE(dialogHelpWanted({"*TavDriverPath: \"" + driver + "\""}));
  EXPECT_EQ(viewer.books, (std::vector<std::string>{"", ""}));
}

TEST_F(Help, IsTheDialogsWhereThePrinterHasNone) {
  EXPECT_TRUE(dialogHelpWanted({}));
  EXPECT_TRUE(dialogHelpWanted({"*TavHelpPath: \"/Nowhere\""}));
  makeFolder("Folder");
  std::ofstream(root / "Folder/file") << "no folder";
  EXPECT_TRUE(dialogHelpWanted({"*TavHelpPath: \"/Folder/file\""}));
  start(nullptr);
  EXPECT_TRUE(controller->shouldShowDefaultHelp());
  EXPECT_TRUE(viewer.books.empty());
}

TEST_F(Help, OfAPathThatNamesNothingIsNotLookedForInTheCurrentFolder) {
  makeDriver("Driver", "<key>CFBundleHelpBookName</key><string>Book</string>");
  const test::CurrentFolder current(root / "Driver");
  for (const std::string path : {"Contents", ".", "", "/../Driver", "../2008/Driver"}) {
    const std::vector<std::string> attributes = {"*TavDriverPath: \"" + path + "\"",
                                                 "*TavHelpPath: \"" + path + "\""};
    EXPECT_TRUE(dialogHelpWanted(attributes)) << path;
    PrinterHelp(ppd.get(), kUTF8Encoding).registerBook();
  }
  EXPECT_TRUE(viewer.books.empty());
  EXPECT_TRUE(viewer.registered.empty());
}

}  // namespace
}  // namespace tavrin
