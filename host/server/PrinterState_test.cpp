#include "host/server/PrinterState.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

using Activity = PrinterState::Activity;
using Reasons = std::vector<std::string>;

PrinterState doing(Activity activity, Reasons reasons = {}, std::string message = {}) {
  return {activity, true, std::move(reasons), std::move(message)};
}

TEST(PrinterState, IsPutIntoWords) {
  EXPECT_EQ(stateText({}), "State unknown");
  EXPECT_EQ(stateText(doing(Activity::idle)), "Ready");
  EXPECT_EQ(stateText(doing(Activity::printing, {"marker-supply-low-report"})),
            "Printing: ink low");
  EXPECT_EQ(stateText(doing(Activity::stopped, {"paused", "media-empty-error", "cover-open"})),
            "Stopped: out of paper, a cover is open. Jobs will wait.");
  EXPECT_EQ(stateText(doing(Activity::gone)), "There is no such printer any more.");
  EXPECT_EQ(stateText(doing(Activity::silent)), "Does not answer");
}

TEST(PrinterState, IsNotReadyWhereThereIsAReason) {
  EXPECT_EQ(stateText(doing(Activity::idle, {"media-empty-warning"})), "Out of paper");
}

TEST(PrinterState, TellsWhatTheServerSaysOfAStoppedPrinter) {
  EXPECT_EQ(stateText(doing(Activity::stopped, {"paused"}, "Paused")), "Stopped. Jobs will wait.");
  EXPECT_EQ(stateText(doing(Activity::stopped, {"paused"}, "Filter failed.")),
            "Stopped: Filter failed. Jobs will wait.");
}

TEST(PrinterState, TellsThatJobsAreRefused) {
  PrinterState state = doing(Activity::idle);
  state.acceptsJobs = false;
  EXPECT_EQ(stateText(state), "Takes no new jobs");
  state.activity = Activity::stopped;
  EXPECT_EQ(stateText(state), "Stopped, takes no new jobs");
}

TEST(PrinterState, IsOfConcernWhereItIsInTheWay) {
  EXPECT_EQ(concernOf(doing(Activity::idle)), Concern::none);
  EXPECT_EQ(concernOf(doing(Activity::printing, {"connecting-to-device"})), Concern::none);
  EXPECT_EQ(concernOf(doing(Activity::idle, {"media-low-report"})), Concern::warning);
  EXPECT_EQ(concernOf(doing(Activity::idle, {"media-low-report", "media-jam-error"})),
            Concern::trouble);
  for (const Activity activity : {Activity::stopped, Activity::silent, Activity::gone})
    EXPECT_EQ(concernOf(doing(activity)), Concern::trouble);
  PrinterState refusing = doing(Activity::idle);
  refusing.acceptsJobs = false;
  EXPECT_EQ(concernOf(refusing), Concern::trouble);
}

TEST(PrinterState, HasAReasonForEachKeyword) {
  EXPECT_EQ(reasonsFrom("media-empty-error,paused"), (Reasons{"media-empty-error", "paused"}));
  EXPECT_EQ(reasonsFrom("none"), Reasons{});
  EXPECT_EQ(reasonsFrom(""), Reasons{});
}

}  // namespace
}  // namespace tavrin
