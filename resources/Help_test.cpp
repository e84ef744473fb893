#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>

#include <gtest/gtest.h>

#include "platform/files/HelpBook.h"
#include "platform/toolkit/HelpViewer.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

const fs::path kPrinters = fs::path(TAVRIN_RESOURCES) / "root/Library/Printers/Tavrin";

std::string contentsOf(const fs::path& file) {
  std::ifstream in(file);
  return {std::istreambuf_iterator<char>(in), {}};
}

// A book that is only a folder goes by the title of its start page.
TEST(SampleHelp, TheR420BookGoesByItsShorterName) {
  const HelpBook book = helpBookAt(kPrinters / "2006/Tavrin420Help");
  EXPECT_EQ(book.name, "Tavrin 420 Series Help");
  EXPECT_TRUE(fs::is_regular_file(helpPage(book, std::nullopt)));
  EXPECT_TRUE(fs::is_regular_file(helpPage(book, "PrintDialog.html")));
}

TEST(SampleHelp, DriverBundlesNameTheirBooks) {
  const HelpBook p520 = helpBookAt(kPrinters / "2007/TavrinP520.bundle");
  EXPECT_EQ(p520.name, "Tavrin P520 Help");
  EXPECT_TRUE(fs::is_regular_file(helpPage(p520, std::nullopt)));
  const HelpBook d700 = helpBookAt(kPrinters / "Drivers/TavrinD700.bundle");
  EXPECT_EQ(d700.name, "Tavrin D700 Help");
  EXPECT_TRUE(fs::is_regular_file(helpPage(d700, std::nullopt)));
}

TEST(SampleHelp, EveryLinkLeadsToAPage) {
  const std::regex link("(href|src)=\"([^\"#]+)\"");
  int links = 0;
  for (const auto& entry : fs::recursive_directory_iterator(kPrinters)) {
    if (entry.path().extension() != ".html") continue;
    const std::string page = contentsOf(entry.path());
    for (auto it = std::sregex_iterator(page.begin(), page.end(), link);
         it != std::sregex_iterator(); ++it, ++links) {
      EXPECT_TRUE(fs::exists(entry.path().parent_path() / (*it)[2].str()))
          << entry.path() << ": " << (*it)[2];
    }
  }
  EXPECT_GT(links, 9);
}

}  // namespace
}  // namespace tavrin
