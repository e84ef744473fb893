#include "host/dialog/JobButtons.h"

#include <sys/stat.h>

#include <QProgressBar>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/fakes/FakePDF.h"
#include "tests/fakes/FakePPD.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

constexpr int kPatience = 20'000;  // milliseconds, on a machine that has much to do

// What is said beside the progress bar, which a screen reader says of it too.
class JobButtonsTest : public testing::Test {
 protected:
  JobRequest request(const char* name) const {
    JobRequest job;
    job.document = place.write(name, numberedPDF(2));
    return job;
  }
  // Nobody ever fills it, so that sending it never ends.
  std::filesystem::path pipe() const {
    const auto path = place.path() / "pipe";
    EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
    return path;
  }
  static std::string said(const JobButtons& buttons) {
    return buttons.findChild<QProgressBar*>()->accessibleName().toStdString();
  }
  static bool says(const JobButtons& buttons, const std::string& text) {
    return QTest::qWaitFor([&] { return said(buttons) == text; }, kPatience);
  }

  test::TemporaryFolder place;
};

TEST_F(JobButtonsTest, SayThatTheDocumentIsPrepared) {
  PrintTask task(request("card.pdf"));
  const JobButtons buttons(task, nullptr);
  task.usePrinterWithoutQueue(makePPD({pageSizeOption()}), place.path() / "jobs");
  task.print();
  EXPECT_EQ(said(buttons), "Preparing the document…");
}

TEST_F(JobButtonsTest, SayWhichOfSeveralDocumentsIsSent) {
  PrintTask task(request("card.pdf"));
  const JobButtons buttons(task, nullptr);
  task.addDocuments({pipe()});
  task.usePrinterWithoutQueue(makePPD({pageSizeOption()}), place.path() / "jobs");
  task.print();
  EXPECT_EQ(said(buttons), "Preparing the documents…");
  EXPECT_TRUE(says(buttons, "Sending document 2 of 2…")) << said(buttons);
}

TEST_F(JobButtonsTest, SayWhichSideIsSent) {
  JobRequest both = request("card.pdf");
  both.options = {{"sides", "two-sided-long-edge"}};
  PrintTask task(both);
  const JobButtons buttons(task, nullptr);
  task.usePrinterWithoutQueue(makePPD({pageSizeOption()}), place.path() / "jobs");
  task.print();
  EXPECT_TRUE(says(buttons, "Sending the fronts…")) << said(buttons);
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return task.stage() == PrintTask::Stage::turning; }, kPatience));
  task.printBacks();
  EXPECT_EQ(said(buttons), "Sending the backs…");
}

}  // namespace
}  // namespace tavrin
