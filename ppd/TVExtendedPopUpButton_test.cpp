#include "ppd/TVExtendedPopUpButton.h"

#include <gtest/gtest.h>

#include "tests/fakes/FakePPD.h"
#include "tests/fakes/FakeToolkit.h"

namespace tavrin {
namespace {

class PopUpFromPPD : public testing::Test {
 protected:
  void fill(const PPDOptionText& option, const char* key, StringEncoding encoding = kUTF8Encoding) {
    ppd = makePPD({option});
    addItemsFromPPD(popUp, ppd.get(), key, encoding);
  }

  PPDPtr ppd;
  FakePopUpButton popUp;
};

TEST_F(PopUpFromPPD, HasOneItemForEachChoiceInOrder) {
  fill(paperSourceOption(), "PaperSource");
  ASSERT_EQ(popUp.numberOfItems(), 2);
  EXPECT_EQ(popUp.itemTitle(0), "Upper Tray");
  EXPECT_EQ(popUp.itemValue(0), "Tray1");
  EXPECT_EQ(popUp.itemTitle(1), "Lower Tray");
  EXPECT_EQ(popUp.itemValue(1), "Tray2");
}

TEST_F(PopUpFromPPD, IsEmptiedFirst) {
  fill(paperSourceOption(), "PaperSource");
  addItemsFromPPD(popUp, ppd.get(), "PaperSource", kUTF8Encoding);
  EXPECT_EQ(popUp.numberOfItems(), 2);
  addItemsFromPPD(popUp, ppd.get(), "MediaType", kUTF8Encoding);
  EXPECT_EQ(popUp.numberOfItems(), 0);
  addItemsFromPPD(popUp, nullptr, "PaperSource", kUTF8Encoding);
  EXPECT_EQ(popUp.numberOfItems(), 0);
}

TEST_F(PopUpFromPPD, StaysEmptyForAnOptionWithoutChoices) {
  fill({"PaperSource", "PickOne", "Tray1", {}}, "PaperSource");
  EXPECT_EQ(popUp.numberOfItems(), 0);
}

TEST_F(PopUpFromPPD, KeepsChoicesWithTheSameTextApart) {
  fill({"MediaType", "PickOne", "A", {"A/Paper", "B/Paper", "C/Film"}}, "MediaType");
  ASSERT_EQ(popUp.numberOfItems(), 3);
  EXPECT_EQ(popUp.itemValue(2), "C");
}

TEST_F(PopUpFromPPD, ReadsTheTextsInThePPDsEncoding) {
  fill({"MediaType", "PickOne", "A", {"A/Qualit\x8e"}}, "MediaType", kMacOSRomanEncoding);
  EXPECT_EQ(popUp.itemTitle(0), "Qualité");
}

TEST_F(PopUpFromPPD, ShowsTheKeywordOfATextThatCannotBeRead) {
  fill({"MediaType", "PickOne", "A", {"A/Qualit\x8e"}}, "MediaType", kUTF8Encoding);
  EXPECT_EQ(popUp.itemTitle(0), "A");
  EXPECT_EQ(popUp.itemValue(0), "A");
}

}  // namespace
}  // namespace tavrin
