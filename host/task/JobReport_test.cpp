#include "host/task/JobReport.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(JobReport, NamesTheJob) {
  const JobReport report = reportOn("photo", {.jobId = 7, .missingOptions = {}, .notReadBack = ""});
  EXPECT_EQ(report.headline, "The job was sent");
  EXPECT_EQ(report.text, "Job photo-7 was sent.");
  EXPECT_FALSE(report.isWarning);
}

TEST(JobReport, NamesTheFolder) {
  const JobReport report = reportOn("/home/ada/Holiday");
  EXPECT_EQ(report.headline, "The job is in the folder");
  EXPECT_EQ(report.text, "The job is in the folder /home/ada/Holiday.");
  EXPECT_EQ(report.folder, "/home/ada/Holiday");
  EXPECT_FALSE(report.isWarning);
}

TEST(JobReport, WarnsOfOptionsThatDidNotArrive) {
  const JobReport report = reportOn(
      "photo", {.jobId = 7, .missingOptions = {"Mirror=True", "copies=2"}, .notReadBack = ""});
  EXPECT_EQ(
      report.text,
      "Job photo-7 was sent. The printer did not get: Mirror=True, copies=2. Look at the print "
      "before printing more.");
  EXPECT_TRUE(report.isWarning);
}

TEST(JobReport, WarnsOfAJobThatCouldNotBeReadBack) {
  const JobReport report =
      reportOn("photo", {.jobId = 7, .missingOptions = {}, .notReadBack = "Nobody answered."});
  EXPECT_EQ(report.text, "Job photo-7 was sent. Nobody answered.");
  EXPECT_TRUE(report.isWarning);
}

}  // namespace
}  // namespace tavrin
