#include "platform/toolkit/View.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

// A view that keeps its frame and nothing else.
class PlainView final : public View {
 public:
  Rect frame() const override { return place; }
  void setFrame(const Rect& frame) override { place = frame; }
  bool isHidden() const override { return false; }
  void setHidden(bool) override {}
  void setNeedsDisplay() override {}

 private:
  Rect place{1, 2, 30, 40};
};

TEST(View, MovesWithoutChangingItsSizeAndTheOtherWayRound) {
  PlainView view;
  view.setFrameOrigin(5, 6);
  EXPECT_EQ(view.frame(), (Rect{5, 6, 30, 40}));
  view.setFrameSize(7, 8);
  EXPECT_EQ(view.frame(), (Rect{5, 6, 7, 8}));
}

}  // namespace
}  // namespace tavrin
