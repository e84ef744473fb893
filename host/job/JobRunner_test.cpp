#include "host/job/JobRunner.h"

#include <sys/stat.h>

#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/TemporaryFolder.h"
#include "tests/servers/PrivateCupsd.h"

namespace tavrin {
namespace {

class JobRunnerTest : public EventLoopTest {
 protected:
  test::TemporaryFolder place;
};

TEST_F(JobRunnerTest, RunsBesideTheWindow) {
  PrivateCupsd cups;
  cups.addPlainQueue("tav");
  JobRunner runner;
  JobRequest request;
  request.printer = "tav";
  request.document = place.write("card.pdf", "%PDF-1.4 a card");
  std::uint64_t sent = 0;
  int jobId = 0;
  QObject::connect(&runner, &JobRunner::progressed, &runner,
                   [&](const Progress& progress) { sent = progress.done; });
  QObject::connect(&runner, &JobRunner::submitted, &runner,
                   [&](const Submission& submission) { jobId = submission.jobId; });
  runner.submit(request, {{"MediaType", "IronOn"}});
  ASSERT_TRUE(eventually([&] { return jobId != 0; }));
  EXPECT_EQ(sent, 15u);
  EXPECT_TRUE(cups.waitForJob(jobId).has("MediaType=IronOn"));
}

TEST_F(JobRunnerTest, SaysThatItsJobWasCancelled) {
  const auto fifo = place.path() / "fifo";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  JobRunner runner;
  JobRequest request;
  request.document = fifo;  // nobody will ever fill it
  bool cancelled = false;
  QObject::connect(&runner, &JobRunner::cancelled, &runner, [&] { cancelled = true; });
  runner.writeFolder(place.path(), request, {});
  runner.cancel();
  EXPECT_TRUE(eventually([&] { return cancelled; }));
}

}  // namespace
}  // namespace tavrin
