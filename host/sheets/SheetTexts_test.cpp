#include "host/sheets/SheetTexts.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

// A document of that many pages on so many sheets.
LaidOutDocument laidOut(std::size_t count, int pages, const char* name = "pages.pdf") {
  LaidOutDocument made;
  made.document.document = name;
  made.document.facts.pages = pages;
  made.list.resize(count, {612, 792, 0});
  return made;
}

Sheets sheets(std::size_t count, int pages) { return {{laidOut(count, pages)}, {}}; }

std::string text(const Sheets& all, int index, const OptionList& options) {
  return sheetText(all, index, options).toStdString();
}

TEST(SheetTextsTest, SaysWhatIsOnASheet) {
  EXPECT_EQ(text(sheets(5, 5), 1, {}), "Sheet 2 of 5: page 2");
  EXPECT_EQ(text(sheets(5, 9), 0, {{"number-up", "2"}, {"Mirror", "True"}}),
            "Sheet 1 of 5: pages 1 and 2, mirrored");
  EXPECT_EQ(text(sheets(2, 8), 1, {{"number-up", "4"}, {"ColorModel", "Black"}}),
            "Sheet 2 of 2: pages 5 to 8, black only");
}

TEST(SheetTextsTest, CountsSidesOnPaperThatIsPrintedOnBoth) {
  const OptionList twoSided{{"Duplex", "DuplexNoTumble"}};
  EXPECT_EQ(text(sheets(3, 3), 0, twoSided), "Side 1 of 3: front of sheet 1, page 1");
  EXPECT_EQ(text(sheets(3, 3), 1, twoSided), "Side 2 of 3: back of sheet 1, page 2");
}

TEST(SheetTextsTest, SaysOfEachSideWhatItIsWhereTheLastSheetComesFirst) {
  for (const auto& [name, value] :
       OptionList{{"Duplex", "DuplexNoTumble"}, {"sides", "two-sided-long-edge"}}) {
    const OptionList reverse{{name, value}, {"outputorder", "reverse"}};
    const Sheets all = sheets(6, 5);  // the filters add an empty side
    EXPECT_EQ(text(all, 0, reverse), "Side 1 of 6: back of sheet 3");
    EXPECT_EQ(text(all, 1, reverse), "Side 2 of 6: front of sheet 3, page 5");
    EXPECT_EQ(text(all, 2, reverse), "Side 3 of 6: back of sheet 2, page 4");
    EXPECT_EQ(text(all, 5, reverse), "Side 6 of 6: front of sheet 1, page 1");
  }
  EXPECT_EQ(text(sheets(5, 5), 0, {{"outputorder", "reverse"}}), "Sheet 1 of 5: page 5");
}

TEST(SheetTextsTest, NamesTheDocumentWhereThereAreSeveral) {
  const Sheets two{{laidOut(3, 3), laidOut(1, 2, "more.pdf")}, {}};
  EXPECT_EQ(text(two, 1, {}), "Sheet 2 of 4: pages.pdf, page 2");
  EXPECT_EQ(text(two, 3, {{"number-up", "2"}}), "Sheet 4 of 4: more.pdf, pages 1 and 2");
}

TEST(SheetTextsTest, DoesNotGuess) {
  EXPECT_EQ(text(sheets(4, 8), 0, {{"booklet", "true"}}), "Sheet 1 of 4");
}

TEST(SheetTextsTest, StandsAroundANumber) {
  EXPECT_EQ(textBeforeNumber({}).toStdString(), "Sheet ");
  EXPECT_EQ(textAfterNumber(12, {}).toStdString(), " of 12");
}

}  // namespace
}  // namespace tavrin
