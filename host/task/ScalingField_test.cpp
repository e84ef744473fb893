#include "host/task/ScalingField.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

using Way = ScalingField::Way;

TEST(ScalingField, IsOneOptionOfTheJob) {
  ScalingField scaling;
  EXPECT_EQ(scaling.options(), OptionList());
  scaling.setWay(Way::actualSize);
  EXPECT_EQ(scaling.options(), (OptionList{{"print-scaling", "none"}}));
  scaling.setPercent(50);
  EXPECT_EQ(scaling.options(), (OptionList{{"scaling", "50"}}));
  scaling.setPercent(0);
  EXPECT_EQ(scaling.percent(), 1);
}

TEST(ScalingField, IsFilledInFromOptions) {
  ScalingField scaling;
  EXPECT_TRUE(scaling.suggest({{"Print-Scaling", "Fill"}}));
  EXPECT_EQ(scaling.way(), Way::fill);
  EXPECT_TRUE(scaling.suggest({{"scaling", "70"}, {"Mirror", "True"}}));
  EXPECT_EQ(scaling.way(), Way::percent);
  EXPECT_EQ(scaling.percent(), 70);
  EXPECT_TRUE(scaling.suggest({}));
  EXPECT_EQ(scaling.way(), Way::automatic);
}

TEST(ScalingField, SaysWhatCannotBeMeant) {
  ScalingField scaling;
  EXPECT_FALSE(scaling.suggest({{"scaling", "0"}}));
  EXPECT_FALSE(scaling.suggest({{"scaling", "1001"}}));
  EXPECT_FALSE(scaling.suggest({{"print-scaling", "huge"}}));
  EXPECT_EQ(scaling.way(), Way::automatic);
}

TEST(ScalingField, LeavesWhatNoControlShowsAsItWasGivenUntilThePersonChooses) {
  const OptionList given{{"ppi", "300"}, {"print-scaling", "none"}};
  ScalingField scaling;
  EXPECT_TRUE(scaling.suggest(given));
  EXPECT_EQ(scaling.way(), Way::asGiven);
  EXPECT_EQ(scaling.options(), given);
  scaling.setWay(Way::fit);
  EXPECT_EQ(scaling.options(), (OptionList{{"print-scaling", "fit"}}));
  scaling.setWay(Way::asGiven);
  EXPECT_EQ(scaling.options(), given);
  scaling.suggest({});
  EXPECT_EQ(scaling.way(), Way::automatic) << "nothing is given any more";
}

TEST(ScalingField, SendsTheUsualWayWhereAnotherWasGiven) {
  ScalingField scaling;
  scaling.suggest({{"print-scaling", "fit"}});
  scaling.setWay(Way::automatic);
  EXPECT_EQ(scaling.options(), (OptionList{{"print-scaling", "auto"}}));
  scaling.suggest({{"print-scaling", "fill"}});
  EXPECT_EQ(scaling.way(), Way::automatic) << "the person has chosen";
}

}  // namespace
}  // namespace tavrin
