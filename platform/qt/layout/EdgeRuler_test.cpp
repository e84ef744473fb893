#include "platform/qt/layout/EdgeRuler.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

// A label column from 20 to 180, controls from 188 to 460, on a panel 480 wide.
std::vector<Span> form(double labelNeeds, double controlNeeds) {
  return {{20, 180, labelNeeds, false}, {188, 460, controlNeeds, true}};
}

TEST(EdgeRuler, KeepsTheDesignWhereEverythingFits) {
  const EdgeRuler ruler(480, 1, form(100, 200));
  EXPECT_EQ(ruler.at(188), 188);
  EXPECT_EQ(ruler.width(), 480);
}

TEST(EdgeRuler, ScalesTheDesign) {
  const EdgeRuler ruler(480, 2, form(100, 200));
  EXPECT_EQ(ruler.at(20), 40);
  EXPECT_EQ(ruler.width(), 960);
}

TEST(EdgeRuler, ALongLabelPushesEverythingToItsRight) {
  const EdgeRuler ruler(480, 1, form(260, 200));
  EXPECT_EQ(ruler.at(180), 280);
  EXPECT_EQ(ruler.at(188), 288);
  EXPECT_EQ(ruler.width(), 580);
}

TEST(EdgeRuler, AWideControlWidensItsColumnOnly) {
  const EdgeRuler ruler(480, 1, form(100, 300));
  EXPECT_EQ(ruler.at(188), 188);
  EXPECT_EQ(ruler.at(460), 488);
}

TEST(EdgeRuler, GivesMoreRoomToWhatStretches) {
  EdgeRuler ruler(480, 1, form(100, 200));
  ruler.widen(580);
  EXPECT_EQ(ruler.at(188), 188);
  EXPECT_EQ(ruler.at(460), 560);
  EXPECT_EQ(ruler.width(), 580);
}

TEST(EdgeRuler, WhatStretchesBesideAWideControlStretchesWithIt) {
  auto spans = form(100, 400);
  spans.push_back({240, 400, 50, true});
  const EdgeRuler ruler(480, 1, spans);
  EXPECT_EQ(ruler.at(460) - ruler.at(188), 400);
  EXPECT_EQ(ruler.at(240) - ruler.at(188), 52);
  EXPECT_EQ(ruler.at(460) - ruler.at(400), 60);
}

TEST(EdgeRuler, ADesignOfNoWidthHoldsNothing) {
  EXPECT_EQ(EdgeRuler(0, 1, {{0, 0, 50, true}}).width(), 0);
}

TEST(EdgeRuler, DoesNotShrink) {
  EdgeRuler ruler(480, 1, form(100, 200));
  ruler.widen(10);
  EXPECT_EQ(ruler.width(), 480);
}

TEST(EdgeRuler, NeverTurnsBack) {
  const EdgeRuler ruler(100, 1.5, {{10, 50, 200, false}, {30, 90, 10, true}, {80, 20, 5, false}});
  for (int x = -20; x < 120; ++x) EXPECT_LE(ruler.at(x), ruler.at(x + 1)) << x;
}

TEST(EdgeRuler, TakesSpansThatLeaveTheDesign) {
  const EdgeRuler ruler(100, 1, {{-10, 150, 10, false}});
  EXPECT_EQ(ruler.width(), 160);
}

}  // namespace
}  // namespace tavrin
