#include "host/preview/UprightTurns.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

const Paper kHigh{QSizeF(600, 800), {}};
const Paper kWide{QSizeF(800, 600), {}};

PreparedDocument documentOf(int pages, const std::vector<int>& widePages,
                            const std::string& format = "application/pdf") {
  PreparedDocument document;
  document.facts.pages = pages;
  document.facts.widePages = widePages;
  document.facts.format = format;
  return document;
}

std::vector<int> turns(const PreparedDocument& document, std::size_t count, const Paper& paper) {
  std::vector<Sheet> sheets(count);
  setUpright(sheets, document, paper);
  std::vector<int> result;
  for (const Sheet& sheet : sheets) result.push_back(sheet.upright);
  return result;
}

using Turns = std::vector<int>;

TEST(UprightTurnsTest, WhatLiesAcrossThePaperIsTurnedBack) {
  EXPECT_EQ(turns(documentOf(3, {2}), 3, kHigh), (Turns{0, 90, 0}));
  EXPECT_EQ(turns(documentOf(3, {2}), 3, kWide), (Turns{90, 0, 90}));
  EXPECT_EQ(turns(documentOf(1, {1}, "image/jpeg"), 1, kHigh), Turns{90});
}

TEST(UprightTurnsTest, APrinterMayTurnPagesToTheOtherSideButNoPictures) {
  Paper paper = kHigh;
  paper.turnsRight = true;
  EXPECT_EQ(turns(documentOf(1, {1}), 1, paper), Turns{270});
  EXPECT_EQ(turns(documentOf(1, {1}, "image/jpeg"), 1, paper), Turns{90});
}

TEST(UprightTurnsTest, AMirrorImageLiesToTheOtherSide) {
  PreparedDocument document = documentOf(2, {2});
  document.options = {{"Mirror", "True"}};
  EXPECT_EQ(turns(document, 2, kHigh), (Turns{0, 270}));
}

TEST(UprightTurnsTest, SheetsAreThoseOfTheChosenPagesInTheirOrder) {
  PreparedDocument document = documentOf(4, {1, 4});
  document.options = {{"page-ranges", "1,3-4"}, {"outputorder", "reverse"}};
  EXPECT_EQ(turns(document, 3, kHigh), (Turns{90, 0, 90}));
  document.options = {{"page-ranges", "3-4"}, {"outputorder", "reverse"}};
  EXPECT_EQ(turns(document, 2, kHigh), (Turns{90, 0}));
}

TEST(UprightTurnsTest, AnEmptyBackComesFirstWhereTheLastSheetDoes) {
  PreparedDocument document = documentOf(3, {3});
  document.options = {{"Duplex", "DuplexNoTumble"}, {"outputorder", "reverse"}};
  EXPECT_EQ(turns(document, 4, kHigh), (Turns{0, 90, 0, 0}));
}

TEST(UprightTurnsTest, TheImposerSaysHowItHasTurnedEachSheet) {
  PreparedDocument document = documentOf(1, {1});
  document.turns = "0123";
  EXPECT_EQ(turns(document, 4, kHigh), (Turns{0, 90, 180, 270}));
  document.options = {{"outputorder", "reverse"}, {"Mirror", "True"}};
  EXPECT_EQ(turns(document, 4, kHigh), (Turns{90, 180, 270, 0}));
}

TEST(UprightTurnsTest, WhatNobodyKnowsIsLeftAsItIs) {
  EXPECT_EQ(turns(documentOf(0, {}, "text/plain"), 2, kWide), (Turns{0, 0}));
  EXPECT_EQ(turns(documentOf(1, {}), 3, kHigh), (Turns{0, 0, 0})) << "more sheets than pages";
}

}  // namespace
}  // namespace tavrin
