#include "host/printer/SheetSequence.h"

#include <gtest/gtest.h>

#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

PPDPtr twoBins() {
  return makePPD({{"OutputBin", "PickOne", "Up", {"Up", "Down", "Side"}}},
                 {"*PageStackOrder Up: Reverse", "*PageStackOrder Down: Normal",
                  "*DefaultOutputOrder: Reverse"});
}

TEST(SheetSequence, IsThatOfTheDocumentWhereThePrinterSaysNothing) {
  EXPECT_FALSE(comesLastSheetFirst(*makePPD({}), {}));
}

TEST(SheetSequence, IsTheWayTheSheetsLieRightInThePrinter) {
  EXPECT_TRUE(comesLastSheetFirst(*makePPD({}, {"*DefaultOutputOrder: Reverse"}), {}));
  EXPECT_FALSE(comesLastSheetFirst(*makePPD({}, {"*DefaultOutputOrder: Normal"}), {}));
}

TEST(SheetSequence, IsThatOfTheChosenBin) {
  const PPDPtr ppd = twoBins();
  EXPECT_TRUE(comesLastSheetFirst(*ppd, {}));
  ppdMarkOption(ppd.get(), "OutputBin", "Down");
  EXPECT_FALSE(comesLastSheetFirst(*ppd, {}));
  ppdMarkOption(ppd.get(), "OutputBin", "Side");
  EXPECT_TRUE(comesLastSheetFirst(*ppd, {})) << "the printer's, where it says nothing of the bin";
}

TEST(SheetSequence, IsTheJobsWhereThatSaysSo) {
  const PPDPtr ppd = twoBins();
  EXPECT_FALSE(comesLastSheetFirst(*ppd, {{"outputorder", "normal"}}));
  EXPECT_FALSE(comesLastSheetFirst(*ppd, {{"output-order", "normal"}}));
  EXPECT_TRUE(comesLastSheetFirst(*makePPD({}), {{"OutputOrder", "Reverse"}}));
}

}  // namespace
}  // namespace tavrin
