#include "host/server/PrinterState.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(PrinterState, IsPutIntoWords) {
  PrinterState state;
  EXPECT_EQ(stateText(state), "State unknown");
  state.activity = PrinterState::Activity::stopped;
  state.reasons = {"paused", "media-empty-error", "marker-supply-low-warning"};
  EXPECT_EQ(stateText(state), "Stopped: media empty, marker supply low (warning)");
}

TEST(PrinterState, HasAReasonForEachKeyword) {
  using Reasons = std::vector<std::string>;
  EXPECT_EQ(reasonsFrom("media-empty-error,paused"), (Reasons{"media-empty-error", "paused"}));
  EXPECT_EQ(reasonsFrom("none"), Reasons{});
  EXPECT_EQ(reasonsFrom(""), Reasons{});
}

}  // namespace
}  // namespace tavrin
