#include "host/impose/layout/Imposition.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>

// Where pages land on the paper. The paper is 600 by 800 points, with margins of 10 at the left, 30
// at the bottom, 20 at the right and 40 at the top, so that nothing is right by accident.

namespace tavrin {
namespace {

constexpr Paper kPaper{{600, 800}, {10, 30, 20, 40}};

PageLook page(double width, double height) { return {{width, height}, false, {}}; }
PageLook picture(double width, double height) {
  return {{width, height}, true, {width * 4, height * 4}};
}

std::string at(Point point) {
  return std::to_string(std::lround(point.x)) + "," + std::to_string(std::lround(point.y));
}

// Where the top left and the bottom right corner of a page come to lie.
std::string corners(const PlacedPage& placed) {
  return at(mapped(placed.matrix, Point{0, 1})) + " " + at(mapped(placed.matrix, Point{1, 0}));
}

std::vector<Sheet> sheets(const std::vector<PageLook>& pages, const OptionList& options,
                          bool whole = false) {
  return imposed(pages, kPaper, layoutOptions(options), whole);
}

std::string alone(const PageLook& look, const OptionList& options) {
  const auto result = sheets({look}, options);
  return result.size() == 1 && result[0].pages.size() == 1 ? corners(result[0].pages[0]) : "none";
}

struct Row {
  OptionList options;
  std::string corners;
};

void expectEach(const PageLook& look, const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    std::string trace;
    for (const auto& [name, value] : row.options)
      trace.append(name).append("=").append(value) += ' ';
    EXPECT_EQ(alone(look, row.options), row.corners) << trace;
  }
}

TEST(ImpositionTest, APageAsLargeAsThePaperStaysWhereItIs) {
  const auto result = sheets({page(600, 800)}, {});
  const Matrix& matrix = result[0].pages[0].matrix;
  EXPECT_EQ(matrix.a, 600);
  EXPECT_EQ(matrix.d, 800);
  EXPECT_EQ(matrix.e, 0);
  EXPECT_EQ(matrix.f, 0);
  EXPECT_FALSE(result[0].pages[0].clip);
  EXPECT_EQ(alone(page(600, 800), {{"print-scaling", "none"}}), "0,800 600,0");
  EXPECT_EQ(alone(page(604, 806), {}), "-2,803 602,-3") << "nearly the same paper";
}

// The printable area reaches from 10,30 to 580,760: 570 by 730.
TEST(ImpositionTest, APageIsScaledAsItIsAskedFor) {
  expectEach(page(300, 200), {
                                 {{}, "145,495 445,295"},
                                 {{{"print-scaling", "auto"}}, "145,495 445,295"},
                                 {{{"print-scaling", "none"}}, "145,495 445,295"},
                                 {{{"scaling", "50"}}, "220,445 370,345"},
                                 {{{"natural-scaling", "50"}}, "220,445 370,345"},
                                 {{{"ppi", "10"}}, "145,495 445,295"},
                             });
}

TEST(ImpositionTest, ALargePageIsMadeSmaller) {
  EXPECT_EQ(alone(page(1140, 1140), {}), "10,680 580,110");
  EXPECT_EQ(alone(page(1140, 1140), {{"scaling", "50"}}), "153,538 438,253");
  EXPECT_EQ(alone(page(1140, 1140), {{"print-scaling", "none"}}), "-270,970 870,-170");
}

TEST(ImpositionTest, APictureFitsByItself) {
  expectEach(picture(57, 73), {
                                  {{}, "10,760 580,30"},
                                  {{{"print-scaling", "fit"}}, "10,760 580,30"},
                                  {{{"scaling", "50"}}, "153,578 438,213"},
                                  {{{"print-scaling", "none"}}, "267,432 324,359"},
                                  {{{"ppi", "144"}}, "238,468 352,322"},
                                  {{{"ppi", "144"}, {"natural-scaling", "50"}}, "267,432 324,359"},
                              });
}

TEST(ImpositionTest, FillingCutsOffWhatIsTooMuch) {
  const auto result = sheets({picture(100, 365)}, {{"print-scaling", "fill"}});
  const PlacedPage& placed = result[0].pages[0];
  EXPECT_EQ(corners(placed), "10,1435 580,-645");
  ASSERT_TRUE(placed.clip);
  EXPECT_EQ(at({placed.clip->left, placed.clip->bottom}), "10,30");
  EXPECT_EQ(at({placed.clip->right(), placed.clip->top()}), "580,760");
}

TEST(ImpositionTest, APositionIsWithinThePrintableArea) {
  expectEach(page(100, 200), {
                                 {{{"position", "center"}}, "245,495 345,295"},
                                 {{{"position", "top"}}, "245,760 345,560"},
                                 {{{"position", "bottom"}}, "245,230 345,30"},
                                 {{{"position", "left"}}, "10,495 110,295"},
                                 {{{"position", "right"}}, "480,495 580,295"},
                                 {{{"position", "top-left"}}, "10,760 110,560"},
                                 {{{"position", "top-right"}}, "480,760 580,560"},
                                 {{{"position", "bottom-left"}}, "10,230 110,30"},
                                 {{{"position", "bottom-right"}}, "480,230 580,30"},
                             });
}

TEST(ImpositionTest, AnOrientationTurnsThePaper) {
  expectEach(page(200, 100), {
                                 {{{"orientation-requested", "3"}}, "195,445 395,345"},
                                 {{{"orientation-requested", "4"}}, "245,295 345,495"},
                                 {{{"orientation-requested", "5"}}, "345,495 245,295"},
                                 {{{"orientation-requested", "6"}}, "395,345 195,445"},
                                 {{{"landscape", "true"}}, "245,295 345,495"},
                             });
}

TEST(ImpositionTest, APositionIsThatOfTheTurnedPaper) {
  const auto topLeft = [](const char* orientation) {
    return alone(page(200, 100),
                 {{"orientation-requested", orientation}, {"position", "top-left"}});
  };
  EXPECT_EQ(topLeft("4"), "10,30 110,230");
  EXPECT_EQ(topLeft("5"), "580,760 480,560");
  EXPECT_EQ(topLeft("6"), "580,30 380,130");
}

TEST(ImpositionTest, APageIsTurnedWhereThatMakesItLarger) {
  EXPECT_EQ(alone(picture(73, 57), {}), "10,30 580,760");
  EXPECT_EQ(alone(page(800, 600), {}), "0,0 600,800");
  EXPECT_EQ(alone(page(1600, 1200), {}), "21,30 569,760");
}

TEST(ImpositionTest, APageIsTurnedWhereItsEdgesWouldNotBePrinted) {
  EXPECT_EQ(alone(page(590, 400), {}), "95,100 495,690");
  EXPECT_EQ(alone(page(590, 400), {{"print-scaling", "none"}}), "95,100 495,690");
}

TEST(ImpositionTest, APageIsNotTurnedWithoutNeed) {
  EXPECT_EQ(alone(page(400, 300), {}), "95,545 495,245") << "it has room as it is";
  EXPECT_EQ(alone(picture(400, 300), {{"print-scaling", "none"}}), "95,545 495,245");
  EXPECT_EQ(alone(picture(50, 50), {}), "10,680 580,110") << "a square";
  EXPECT_EQ(alone(picture(200, 100), {{"orientation-requested", "3"}}), "10,538 580,253");
}

TEST(ImpositionTest, SeveralPagesShareTheTurnedPaper) {
  const auto result = sheets(std::vector(3, page(600, 800)), {{"number-up", "2"}});
  ASSERT_EQ(result.size(), 2U);
  ASSERT_EQ(result[0].pages.size(), 2U);
  EXPECT_EQ(result[1].pages.size(), 1U);
  EXPECT_EQ(corners(result[0].pages[0]), "54,30 536,392");
  EXPECT_EQ(corners(result[0].pages[1]), "54,398 536,760");
  EXPECT_EQ(corners(result[1].pages[0]), "54,30 536,392");
}

TEST(ImpositionTest, SeveralPagesComeInTheirOrder) {
  const auto first = [](const char* order) {
    const auto result =
        sheets(std::vector(4, picture(57, 73)), {{"number-up", "4"}, {"number-up-layout", order}});
    const Point centre = mapped(result[0].pages[1].matrix, Point{0.5, 0.5});
    return std::string(centre.y > 400 ? "top " : "bottom ") + (centre.x < 300 ? "left" : "right");
  };
  EXPECT_EQ(first("lrtb"), "top right");
  EXPECT_EQ(first("rltb"), "top left");
  EXPECT_EQ(first("lrbt"), "bottom right");
  EXPECT_EQ(first("tblr"), "bottom left");
  EXPECT_EQ(first("btrl"), "top right");
}

TEST(ImpositionTest, APictureLiesInItsCellWhereThatMakesItLarger) {
  const std::vector<PageLook> mixed{picture(57, 73), picture(73, 57), picture(57, 73),
                                    picture(80, 30)};
  const auto together = sheets(mixed, {{"number-up", "4"}})[0];
  EXPECT_EQ(together.turn, Turn::upright);
  // Cells are 282 by 362: the first one reaches from 10,398 to 292,760, the second from 298.
  EXPECT_EQ(corners(together.pages[0]), "10,760 292,398");
  EXPECT_EQ(corners(together.pages[1]), "298,398 580,760");
  EXPECT_EQ(corners(together.pages[3]), "371,30 507,392") << "its top is at the left";
}

TEST(ImpositionTest, APictureKeepsItsPositionInItsCellWithoutNeed) {
  const auto second = [](const PageLook& look, const OptionList& others) {
    OptionList options = others;
    setOption(options, "number-up", "4");
    const Matrix matrix = sheets({picture(57, 73), look}, options)[0].pages[1].matrix;
    return matrix.b == 0 && matrix.a > 0 ? "upright" : "turned";
  };
  EXPECT_STREQ(second(picture(73, 57), {}), "turned");
  EXPECT_STREQ(second(picture(73, 57), {{"print-scaling", "fill"}}), "turned");
  EXPECT_STREQ(second(picture(50, 50), {}), "upright") << "a square";
  EXPECT_STREQ(second(picture(73, 57), {{"print-scaling", "none"}}), "upright") << "it has room";
  EXPECT_STREQ(second(picture(73, 57), {{"orientation-requested", "3"}}), "turned");
  EXPECT_STREQ(second(page(730, 570), {}), "upright") << "a page is read beside the others";
}

// On the paper, the cells are 282 by 362.
TEST(ImpositionTest, AnOrientationSaysHowTheSheetOfPicturesLies) {
  const std::vector<PageLook> mixed{picture(57, 73), picture(73, 57), picture(57, 73),
                                    picture(73, 57)};
  const auto lying = sheets(mixed, {{"number-up", "4"}, {"orientation-requested", "4"}})[0];
  EXPECT_EQ(lying.turn, Turn::left);
  EXPECT_EQ(corners(lying.pages[0]), "292,30 10,392") << "its top is below, as the sheet is held";
  EXPECT_EQ(corners(lying.pages[1]), "10,398 292,760");
  for (const PlacedPage& placed : lying.pages)
    EXPECT_NEAR(mapped(placed.matrix, Rect{0, 0, 1, 1}).height, 362, 1);
}

TEST(ImpositionTest, TheFirstPictureAloneDoesNotMakeStrips) {
  for (const PageLook& first : {picture(400, 40), picture(40, 400), picture(57, 73)})
    for (const char* orientation : {"", "3", "4"}) {
      const auto four = sheets({first, picture(57, 73), picture(57, 73), picture(73, 57)},
                               {{"number-up", "4"}, {"orientation-requested", orientation}})[0];
      const Rect last = mapped(four.pages[3].matrix, Rect{0, 0, 1, 1});
      EXPECT_NEAR(last.width, 282, 1) << orientation;
    }
}

TEST(ImpositionTest, APageInACellIsScaledAndPlacedInTheCell) {
  const OptionList four{{"number-up", "4"}, {"orientation-requested", "3"}};
  const auto with = [&](const char* name, const char* value) {
    OptionList options = four;
    setOption(options, name, value);
    return sheets({page(100, 100)}, options)[0].pages[0];
  };
  // The first cell reaches from 10,398 to 292,760.
  EXPECT_EQ(corners(with("position", "top-left")), "10,760 110,660");
  EXPECT_EQ(corners(with("position", "bottom-right")), "192,498 292,398");
  EXPECT_EQ(corners(with("print-scaling", "fit")), "10,720 292,438");
  const PlacedPage filled = with("print-scaling", "fill");
  EXPECT_EQ(corners(filled), "-30,760 332,398");
  ASSERT_TRUE(filled.clip);
  EXPECT_EQ(at({filled.clip->left, filled.clip->right()}), "10,292");
  EXPECT_TRUE(with("natural-scaling", "500").clip) << "not over the neighbours";
}

TEST(ImpositionTest, ABorderIsRoundThePageAndWithinTheCell) {
  const auto frames = [](const char* border) {
    return sheets({picture(57, 73)}, {{"page-border", border}})[0].frames;
  };
  EXPECT_TRUE(frames("none").empty());
  for (const char* border : {"single", "single-thick", "double", "double-thick"}) {
    const bool isDouble = std::string(border).starts_with("double");
    ASSERT_EQ(frames(border).size(), isDouble ? 2U : 1U);
    for (const Frame& frame : frames(border)) {
      EXPECT_EQ(frame.line, std::string(border).ends_with("thick") ? 1.5 : 0.5);
      EXPECT_GE(frame.rect.left - frame.line / 2, 10);
      EXPECT_LE(frame.rect.top() + frame.line / 2, 760);
      EXPECT_GT(frame.rect.height, 700);
    }
  }
}

TEST(ImpositionTest, ABorderIsRoundWhatShowsOfThePage) {
  const auto result =
      sheets({picture(100, 365)}, {{"print-scaling", "fill"}, {"page-border", "single"}});
  EXPECT_NEAR(result[0].frames[0].rect.height, 726.5, 0.01);
}

TEST(ImpositionTest, ABookletHasItsFoldInTheMiddleOfThePaper) {
  const auto result = sheets(std::vector(8, page(300, 400)), {{"booklet", "true"}});
  ASSERT_EQ(result.size(), 4U);
  EXPECT_EQ(result[0].pages[0].page, 7);
  EXPECT_EQ(result[0].pages[1].page, 0);
  // On the paper, left of the fold is below it.
  EXPECT_EQ(corners(result[0].pages[0]), "95,70 495,370");
  const Point low = mapped(result[0].pages[0].matrix, Point{0.5, 0.5});
  const Point high = mapped(result[0].pages[1].matrix, Point{0.5, 0.5});
  EXPECT_NEAR((low.y + high.y) / 2, 400, 1e-9);
  EXPECT_LT(low.y, high.y);
}

TEST(ImpositionTest, ABookletOnWidePaperIsNotTurned) {
  const Paper wide{{800, 600}, {10, 10, 10, 10}};
  const auto result = imposed({page(300, 400)}, wide, layoutOptions({{"booklet", "true"}}), false);
  ASSERT_EQ(result.size(), 2U);
  EXPECT_EQ(corners(result[0].pages[0]), "445,500 745,100");
  EXPECT_TRUE(result[1].pages.empty());
}

TEST(ImpositionTest, AnEmptySheetMakesTheirNumberEven) {
  const auto result = sheets(std::vector(3, page(600, 800)), {}, true);
  ASSERT_EQ(result.size(), 4U);
  EXPECT_TRUE(result[3].pages.empty());
}

TEST(ImpositionTest, NoPageIsNoSheet) {
  EXPECT_TRUE(sheets({page(600, 800)}, {{"page-ranges", "2"}}, true).empty());
}

TEST(ImpositionTest, EachSheetSaysHowItLies) {
  const auto turnOf = [](const PageLook& look, const OptionList& options) {
    return sheets({look, look}, options)[0].turn;
  };
  EXPECT_EQ(turnOf(picture(57, 73), {}), Turn::upright);
  EXPECT_EQ(turnOf(picture(73, 57), {}), Turn::left);
  EXPECT_EQ(turnOf(page(200, 100), {{"orientation-requested", "5"}}), Turn::right);
  EXPECT_EQ(turnOf(page(200, 100), {{"orientation-requested", "6"}}), Turn::upsideDown);
  EXPECT_EQ(turnOf(page(600, 800), {{"number-up", "2"}}), Turn::left);
  EXPECT_EQ(turnOf(page(600, 800), {{"booklet", "true"}}), Turn::left);
  const auto mixed = sheets({page(600, 800), page(800, 600)}, {});
  EXPECT_EQ(mixed[0].turn, Turn::upright);
  EXPECT_EQ(mixed[1].turn, Turn::left);
}

TEST(ImpositionTest, NothingIsTurnedInsideOutOnTheSmallestPaper) {
  const Paper stamp{{30, 30}, {1, 1, 1, 1}};
  const auto result =
      imposed(std::vector(256, page(600, 800)), stamp,
              layoutOptions({{"number-up", "256"}, {"page-border", "double-thick"}}), false);
  ASSERT_EQ(result.size(), 1U);
  for (const PlacedPage& placed : result[0].pages) {
    const Rect rect = mapped(placed.matrix, Rect{0, 0, 1, 1});
    EXPECT_GT(rect.width, 0);
    EXPECT_GE(rect.left, 0);
    EXPECT_LE(rect.top(), 30);
  }
}

}  // namespace
}  // namespace tavrin
