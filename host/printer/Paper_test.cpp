#include "host/printer/Paper.h"

#include <limits>

#include <gtest/gtest.h>

#include "host/printer/PPDLoader.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

class PaperTest : public testing::Test {
 protected:
  PaperTest() { mark("PageSize", "Letter"); }
  void mark(const char* option, const char* choice) { ppdMarkOption(ppd.get(), option, choice); }
  OptString paperFor(double width, double height) { return paperOfSize(*ppd, {width, height}); }

  PPDPtr ppd = std::move(*loadPPD(SAMPLE_PRINTERS "/tavrin-r420.ppd"));
};

TEST_F(PaperTest, FindsThePaperOfAPage) {
  EXPECT_EQ(paperFor(612, 792), "Letter");
  EXPECT_EQ(paperFor(595, 842), "A4");
  EXPECT_EQ(paperFor(288, 432), "4x6");
}

TEST_F(PaperTest, FindsItForAPageThatIsTurned) { EXPECT_EQ(paperFor(842, 595), "A4"); }

TEST_F(PaperTest, SizesMayBeRounded) {
  EXPECT_EQ(paperFor(595.276, 841.89), "A4");
  EXPECT_EQ(paperFor(592, 845), "A4");
  EXPECT_EQ(paperFor(591.9, 842), std::nullopt);
  EXPECT_EQ(paperFor(595, 845.1), std::nullopt);
}

TEST_F(PaperTest, FindsNoneForAPageThatIsLikeNone) {
  EXPECT_EQ(paperFor(0, 0), std::nullopt) << "a page without a size";
  EXPECT_EQ(paperFor(612, 0), std::nullopt);
  EXPECT_EQ(paperFor(2384, 3370), std::nullopt);
}

TEST_F(PaperTest, PrefersTheMarkedOneOfSeveral) {
  const OptString first = paperFor(297, 684);
  EXPECT_EQ(first, "Env10");
  mark("PageSize", "Envelope10");
  EXPECT_EQ(paperFor(297, 684), "Envelope10");
}

TEST_F(PaperTest, KnowsTheMarkedPaperWithItsMargins) {
  mark("PageSize", "A4");
  ppd_size_t& size = *ppdPageSize(ppd.get(), "A4");
  size.left = 10;
  size.bottom = 20;
  size.right = 565;
  size.top = 802;
  const Paper expected{QSizeF(595, 842), QMarginsF(10, 40, 30, 20)};
  EXPECT_EQ(markedPaper(*ppd), expected) << "left, top, right, bottom";
}

TEST_F(PaperTest, MarginsLeaveRoomToPrintOn) {
  struct Row {
    float left, bottom, right, top;
    QMarginsF margins;  // left, top, right, bottom
  };
  const float none = std::numeric_limits<float>::quiet_NaN();
  const float endless = std::numeric_limits<float>::infinity();
  const std::vector<Row> rows{
      {-20, 10, 700, 900, {0, 0, 0, 10}},  {500, 10, 100, 832, {0, 10, 0, 10}},
      {9, 800, 586, 20, {9, 0, 9, 0}},     {297, 10, 298, 832, {0, 10, 0, 10}},
      {none, 10, 586, none, {0, 0, 0, 0}}, {-endless, -endless, endless, endless, {0, 0, 0, 0}}};
  mark("PageSize", "A4");
  ppd_size_t& size = *ppdPageSize(ppd.get(), "A4");
  for (const Row& row : rows) {
    size.left = row.left;
    size.bottom = row.bottom;
    size.right = row.right;
    size.top = row.top;
    EXPECT_EQ(markedPaper(*ppd), (Paper{QSizeF(595, 842), row.margins})) << row.left;
  }
  size.width = none;
  EXPECT_EQ(markedPaper(*ppd), Paper());
}

TEST_F(PaperTest, SaysToWhichSideThePrinterTurnsPages) {
  EXPECT_FALSE(markedPaper(*ppd).turnsRight);
  ppd->landscape = -90;
  EXPECT_TRUE(markedPaper(*ppd).turnsRight);
}

TEST_F(PaperTest, TakesA4WhereNoPaperIsMarked) {
  const PPDPtr office = makePPD({mirrorOption()});
  EXPECT_EQ(markedPaper(*office), Paper());
}

}  // namespace
}  // namespace tavrin
