#include "host/support/Cancellable.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

Cancellable<int> half(Cancellable<int> whole) {
  if (!whole) return whole.why();
  return *whole / 2;
}

TEST(Cancellable, HoldsAValue) {
  const auto answer = half(6);
  ASSERT_TRUE(answer);
  EXPECT_EQ(*answer, 3);
  EXPECT_FALSE(answer.cancelled());
}

TEST(Cancellable, PassesAFailureOn) {
  const auto answer = half(Failure{"There is no number."});
  ASSERT_FALSE(answer);
  EXPECT_FALSE(answer.cancelled());
  EXPECT_EQ(answer.reason(), "There is no number.");
}

TEST(Cancellable, PassesACancellingOn) {
  const auto answer = half(Cancelled{});
  ASSERT_FALSE(answer);
  EXPECT_TRUE(answer.cancelled());
}

}  // namespace
}  // namespace tavrin
