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

TEST(JobReport, TellsOfSeveralJobsInOneSentence) {
  const auto sent = [](int id, const std::string& remark = "") {
    return reportOn("photo", {.jobId = id, .missingOptions = {}, .notReadBack = remark});
  };
  EXPECT_EQ(inOne({sent(7)}).text, "Job photo-7 was sent.");
  EXPECT_EQ(inOne({sent(7), sent(8)}).text, "Jobs photo-7, photo-8 were sent.");
  EXPECT_EQ(inOne({sent(7), sent(8), sent(9)}).text, "Jobs photo-7 to photo-9 were sent.");
  EXPECT_EQ(inOne({sent(7), sent(9), sent(10)}).text, "Jobs photo-7, photo-9, photo-10 were sent.");
  const JobReport odd = inOne({sent(7, "Nobody answered."), sent(8, "Nobody answered.")});
  EXPECT_EQ(odd.text, "Jobs photo-7, photo-8 were sent. Nobody answered.") << "once";
  EXPECT_TRUE(odd.isWarning);
}

TEST(JobReport, NamesTheFolderOfSeveralJobsOnce) {
  const JobReport both = inOne({reportOn("/jobs/a.jpg"), reportOn("/jobs/b.jpg")});
  EXPECT_EQ(both.headline, "2 jobs are in the folder");
  EXPECT_EQ(both.text, "2 jobs are in the folder /jobs.");
  EXPECT_EQ(both.folder, "/jobs");
}

}  // namespace
}  // namespace tavrin
