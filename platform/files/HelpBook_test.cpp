#include "platform/files/HelpBook.h"

#include <fstream>
#include <memory>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "tests/fixtures/CurrentFolder.h"
#include "tests/fixtures/Environment.h"
#include "tests/fixtures/TemporaryFolder.h"
#include "tests/fixtures/XmlList.h"

namespace tavrin {
namespace {

using test::LocaleEnvironment;
using test::xmlEntry;

class HelpBookTest : public testing::Test {
 protected:
  std::filesystem::path write(const std::string& name, const std::string& title = "Page") {
    return folder.write("book/" + name, "<title>" + title + "</title>");
  }
  void writeInfo(const std::string& entries) {
    folder.write("book/Contents/Info.plist", test::xmlDictionary(entries));
  }
  HelpBook book() const { return helpBookAt(folder.path() / "book"); }

  test::TemporaryFolder folder;
  LocaleEnvironment locale{{"LC_ALL", "de_DE.UTF-8"}};
};

TEST_F(HelpBookTest, IsAFolderWithPages) {
  const auto start = write("index.html", "Tavrin 420 Help");
  write("PrintDialog.html");
  EXPECT_EQ(book().name, "Tavrin 420 Help");
  EXPECT_EQ(book().folder, folder.path() / "book");
  EXPECT_EQ(book().startPage, start);
}

TEST_F(HelpBookTest, IsNothingAtTheEmptyPathWhateverTheCurrentFolderHolds) {
  writeInfo(xmlEntry("CFBundleHelpBookName", "Book"));
  write("index.html");
  const test::CurrentFolder current(folder.path() / "book");
  EXPECT_EQ(helpBookAt("").name, "");
  EXPECT_EQ(helpBookAt("").startPage, "");
}

TEST_F(HelpBookTest, StartsWithItsIndexElseWithItsOnlyPage) {
  const auto only = write("welcome.html", "Welcome");
  folder.write("book/style.css", "");
  EXPECT_EQ(book().startPage, only);
  write("second.html");
  EXPECT_EQ(book().startPage, "");
  EXPECT_EQ(book().name, "");
  const auto index = write("index.htm", "Index");
  EXPECT_EQ(book().startPage, index);
}

TEST_F(HelpBookTest, NameInTheInformationGoesBeforeTheTitle) {
  writeInfo(xmlEntry("CFBundleHelpBookName", "Tavrin R420 Help"));
  EXPECT_EQ(book().name, "Tavrin R420 Help");
  EXPECT_EQ(book().startPage, "");
  const auto start = write("Contents/Resources/index.html", "Title");
  EXPECT_EQ(book().name, "Tavrin R420 Help");
  EXPECT_EQ(book().startPage, start);
}

TEST_F(HelpBookTest, IsReadInTheUsersLanguage) {
  writeInfo(xmlEntry("CFBundleHelpBookFolder", "Help"));
  const auto english = write("Contents/Resources/en.lproj/Help/index.html");
  EXPECT_EQ(book().startPage, english);
  const auto neutral = write("Contents/Resources/Help/index.html");
  EXPECT_EQ(book().startPage, neutral);
  const auto german = write("Contents/Resources/de.lproj/Help/index.html", "Hilfe");
  EXPECT_EQ(book().startPage, german);
  EXPECT_EQ(book().folder, german.parent_path());
  EXPECT_EQ(book().name, "Hilfe");
}

TEST_F(HelpBookTest, MayBeABundleInsideTheDriversBundle) {
  writeInfo(xmlEntry("CFBundleHelpBookFolder", "Tavrin.help") +
            xmlEntry("CFBundleHelpBookName", "Driver Help"));
  const auto start = write("Contents/Resources/Tavrin.help/Contents/Resources/de.lproj/index.html");
  EXPECT_EQ(book().startPage, start);
  EXPECT_EQ(book().name, "Driver Help");
}

TEST_F(HelpBookTest, FolderOfTheInformationIsAPlainName) {
  folder.write("elsewhere/index.html", "<title>Elsewhere</title>");
  for (const char* name : {"../../../elsewhere", "..", "/", "."}) {
    writeInfo(xmlEntry("CFBundleHelpBookFolder", name));
    EXPECT_EQ(book().startPage, "") << name;
  }
}

TEST_F(HelpBookTest, FolderOfTheInformationLiesInTheBook) {
  writeInfo(xmlEntry("CFBundleHelpBookFolder", "Help"));
  folder.write("elsewhere/index.html", "<title>Elsewhere</title>");
  const auto resources = folder.path() / "book/Contents/Resources";
  std::filesystem::create_directories(resources);
  std::filesystem::create_directory_symlink(folder.path() / "elsewhere", resources / "Help");
  EXPECT_EQ(book().startPage, "");
  EXPECT_EQ(book().folder, "");
  EXPECT_EQ(book().name, "");
  std::filesystem::remove(resources / "Help");
  const auto shared = write("Pages/index.html");
  std::filesystem::create_directory_symlink(shared.parent_path(), resources / "Help");
  EXPECT_EQ(book().startPage, resources / "Help/index.html");
}

TEST_F(HelpBookTest, ThatContainsItselfEnds) {
  writeInfo(xmlEntry("CFBundleHelpBookFolder", "Self"));
  std::filesystem::create_directories(folder.path() / "book/Contents/Resources");
  std::filesystem::create_directory_symlink("../..",
                                            folder.path() / "book/Contents/Resources/Self");
  EXPECT_EQ(book().startPage, "");
}

TEST_F(HelpBookTest, WithoutAFolderIsNotABook) {
  for (const char* name : {"missing", "", "file"}) {
    folder.write("file", "<title>x</title>");
    const HelpBook none = helpBookAt(folder.path() / name);
    EXPECT_EQ(none.name, "") << name;
    EXPECT_EQ(none.startPage, "") << name;
    EXPECT_EQ(none.folder, "") << name;
  }
}

TEST_F(HelpBookTest, WithAnOversizeStartPageHasNoTitle) {
  const auto start = write("index.html", "Title");
  std::ofstream(start, std::ios::app) << std::string(1024 * 1024, ' ');
  EXPECT_EQ(book().startPage, start);
  EXPECT_EQ(book().name, "");
}

TEST_F(HelpBookTest, StartPageIsAFileOfItsOwn) {
  std::filesystem::create_directories(folder.path() / "book");
  ASSERT_EQ(mkfifo((folder.path() / "book/index.html").c_str(), 0600), 0);
  EXPECT_EQ(book().startPage, "");
  std::filesystem::remove(folder.path() / "book/index.html");
  std::filesystem::create_symlink("/etc/passwd", folder.path() / "book/index.html");
  EXPECT_EQ(book().startPage, "");
}

TEST_F(HelpBookTest, PagesAreFoundByName) {
  const auto start = write("index.html");
  const auto page = write("PrintDialog.html");
  const auto deeper = write("pages/ink.html");
  EXPECT_EQ(helpPage(book(), "PrintDialog.html"), page);
  EXPECT_EQ(helpPage(book(), "pages/ink.html"), deeper);
  EXPECT_EQ(helpPage(book(), std::nullopt), start);
  EXPECT_EQ(helpPage(book(), "missing.html"), "");
  EXPECT_EQ(helpPage(book(), "pages"), "");
  EXPECT_EQ(helpPage(book(), ""), "");
  EXPECT_EQ(helpPage(HelpBook(), "PrintDialog.html"), "");
}

TEST_F(HelpBookTest, PagesDoNotLeadOut) {
  write("index.html");
  const auto secret = folder.write("secret.html", "secret");
  std::filesystem::create_symlink("../secret.html", folder.path() / "book/link.html");
  std::filesystem::create_directory_symlink("..", folder.path() / "book/up");
  EXPECT_EQ(helpPage(book(), "../secret.html"), "");
  EXPECT_EQ(helpPage(book(), "link.html"), "");
  EXPECT_EQ(helpPage(book(), "up/secret.html"), "");
  EXPECT_EQ(helpPage(book(), secret.string()), "");
  EXPECT_EQ(helpPage(book(), std::string("index.html\0", 11)), "");
  EXPECT_EQ(helpPage(book(), "../book/index.html"), folder.path() / "book/../book/index.html");
}

}  // namespace
}  // namespace tavrin
