#include "host/impose/layout/LayoutOptions.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

LayoutOptions with(const char* name, const char* value) { return layoutOptions({{name, value}}); }

TEST(LayoutOptionsTest, AreThoseOfPlainSheetsWhenNothingIsAskedFor) {
  for (const LayoutOptions& plain : {layoutOptions({}),
                                     with("MediaType", "Glossy"),
                                     with("number-up", "many"),
                                     with("number-up", "0"),
                                     with("number-up", "2.5"),
                                     with("number-up", "99999999999"),
                                     with("orientation-requested", "7"),
                                     with("page-ranges", "x"),
                                     with("page-ranges", "5-3"),
                                     with("page-ranges", "0-3"),
                                     with("page-ranges", "1-3,"),
                                     with("page-ranges", "-"),
                                     with("scaling", "0"),
                                     with("scaling", "big"),
                                     with("scaling", "nan"),
                                     with("ppi", "-3"),
                                     with("print-scaling", "auto"),
                                     with("position", "middle"),
                                     with("booklet", "false"),
                                     with("booklet", "maybe"),
                                     with("fit-to-page", "false"),
                                     with("page-set", "some")}) {
    EXPECT_TRUE(plain.ranges.empty());
    EXPECT_EQ(plain.set, PageSet::all);
    EXPECT_FALSE(plain.orientation);
    EXPECT_EQ(plain.numberUp, 1);
    EXPECT_EQ(plain.scaling, Scaling::usual);
    EXPECT_EQ(plain.share, 1);
    EXPECT_FALSE(plain.ppi);
    EXPECT_FALSE(plain.booklet);
    EXPECT_EQ(plain.position.x, 0);
    EXPECT_EQ(plain.position.y, 0);
  }
}

TEST(LayoutOptionsTest, PageRangesMayBeOpen) {
  const LayoutOptions options = with("page-ranges", "5,1-3,7-,-2");
  ASSERT_EQ(options.ranges.size(), 4U);
  EXPECT_EQ(options.ranges[0].first, 5);
  EXPECT_EQ(options.ranges[0].last, 5);
  EXPECT_EQ(options.ranges[1].last, 3);
  EXPECT_GT(options.ranges[2].last, 1'000'000);
  EXPECT_EQ(options.ranges[3].first, 1);
  EXPECT_EQ(options.ranges[3].last, 2);
}

TEST(LayoutOptionsTest, LandscapeIsAnOrientationUnlessOneIsNamed) {
  EXPECT_EQ(with("landscape", "true").orientation, Turn::left);
  EXPECT_EQ(with("Orientation-Requested", "5").orientation, Turn::right);
  EXPECT_EQ(with("landscape", "false").orientation, std::nullopt);
  EXPECT_EQ(layoutOptions({{"landscape", "yes"}, {"orientation-requested", "6"}}).orientation,
            Turn::upsideDown);
}

struct Scaled {
  OptionList options;
  Scaling scaling;
  double share;
};

TEST(LayoutOptionsTest, ScalingIsANumberOrElseAWord) {
  const std::vector<Scaled> rows{
      {{{"print-scaling", "FILL"}}, Scaling::fill, 1},
      {{{"print-scaling", "none"}}, Scaling::actual, 1},
      {{{"fit-to-page", "true"}}, Scaling::fit, 1},
      {{{"fitplot", "on"}}, Scaling::fit, 1},
      {{{"fill", "true"}}, Scaling::fill, 1},
      {{{"fill", "true"}, {"print-scaling", "fit"}}, Scaling::fit, 1},
      {{{"print-scaling", "auto-fit"}, {"fit-to-page", "true"}}, Scaling::fit, 1},
      {{{"scaling", "50"}, {"print-scaling", "fill"}}, Scaling::usual, 0.5},
      {{{"natural-scaling", "12.5"}}, Scaling::actual, 0.125},
      {{{"ppi", "300"}}, Scaling::actual, 1},
      {{{"ppi", "300"}, {"natural-scaling", "200"}}, Scaling::actual, 2},
  };
  for (const Scaled& row : rows) {
    SCOPED_TRACE(row.options.front().first + "=" + row.options.front().second);
    EXPECT_EQ(layoutOptions(row.options).scaling, row.scaling);
    EXPECT_EQ(layoutOptions(row.options).share, row.share);
  }
}

TEST(LayoutOptionsTest, KnowsTheWaysThroughTheCells) {
  const CellOrder order = with("number-up-layout", "btrl").order;
  EXPECT_TRUE(order.byColumns && order.rightToLeft && order.bottomToTop);
  EXPECT_FALSE(with("number-up-layout", "rltb").order.byColumns);
  EXPECT_TRUE(with("number-up-layout", "rltb").order.rightToLeft);
}

TEST(LayoutOptionsTest, ABookletHasManyNames) {
  for (const char* value : {"true", "Yes", "on", "shuffle", "shuffle-only"})
    EXPECT_TRUE(with("booklet", value).booklet) << value;
}

}  // namespace
}  // namespace tavrin
