#include "host/impose/layout/PickedPages.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

using Pages = std::vector<int>;

Pages picked(const OptionList& options, int pages = 8) {
  return pickedPages(pages, layoutOptions(options));
}

TEST(PickedPagesTest, AreAllByDefault) { EXPECT_EQ(picked({}, 3), (Pages{0, 1, 2})); }

TEST(PickedPagesTest, ComeOnceAndInTheirOrder) {
  EXPECT_EQ(picked({{"page-ranges", "5,1-2,2-3"}}), (Pages{0, 1, 2, 4}));
  EXPECT_EQ(picked({{"page-ranges", "7-"}}), (Pages{6, 7}));
  EXPECT_EQ(picked({{"page-ranges", "-2"}}), (Pages{0, 1}));
}

TEST(PickedPagesTest, OddAndEvenAreNumbersOfTheDocument) {
  EXPECT_EQ(picked({{"page-set", "even"}, {"page-ranges", "3-6"}}), (Pages{3, 5}));
  EXPECT_EQ(picked({{"page-set", "odd"}, {"page-ranges", "2-5"}}), (Pages{2, 4}));
}

TEST(PickedPagesTest, MayBeNone) {
  EXPECT_EQ(picked({{"page-ranges", "9-12"}}), Pages{});
  EXPECT_EQ(picked({{"page-set", "even"}}, 1), Pages{});
}

}  // namespace
}  // namespace tavrin
