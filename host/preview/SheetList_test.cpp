#include "host/preview/SheetList.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

constexpr char kTwoSheets[] =
    "Title:           Card\n"
    "Pages:           2\n"
    "Encrypted:       no\n"
    "Page    1 size:  792 x 612 pts (letter)\n"
    "Page    1 rot:   270\n"
    "Page    2 size:  594.96 x 841.92 pts (A4)\n"
    "Page    2 rot:   0\n"
    "File size:       4107 bytes\n";

TEST(SheetListTest, ReadsEveryPage) {
  const std::vector<Sheet> expected{{792, 612, 270}, {594.96, 841.92, 0}};
  EXPECT_EQ(sheetsFromInfo(kTwoSheets), expected);
}

TEST(SheetListTest, ATitleCannotForgePages) {
  const std::string forged =
      "Title: a\nPages: 3\nPage 1 size: 1 x 1 pts\n" + std::string(kTwoSheets);
  EXPECT_EQ(sheetsFromInfo(forged).size(), 2u);
  EXPECT_EQ(sheetsFromInfo(forged)[0].width, 792);
}

TEST(SheetListTest, HasNoSheetsWhereTheTextMakesNoSense) {
  for (const char* text : {"", "Pages: 1\n", "a\nPages: x\n", "a\nPages: -1\n",
                           "a\nPages: 2000000000\n", "a\nPages: 1\n", "Title: Pages: 5\n",
                           "a\nPages: -4\n", "a\nPages: 1\nPage 1 size: 0 x 5 pts\n",
                           "a\nPages: 1\nPage 1 size: 5 x 5 pts\nPage 1 rot: 45\n"})
    EXPECT_TRUE(sheetsFromInfo(text).empty()) << text;
}

}  // namespace
}  // namespace tavrin
