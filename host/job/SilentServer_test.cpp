#include "tests/servers/SilentServer.h"

#include <chrono>
#include <functional>
#include <thread>

#include <gtest/gtest.h>

#include "host/job/JobSubmitter.h"
#include "host/server/Destinations.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

constexpr Patience kLittle = std::chrono::milliseconds(300);
constexpr Patience kForEver = std::chrono::hours(1);

class SilentServerTest : public testing::Test {
 protected:
  JobRequest request() {
    JobRequest request;
    request.printer = "tav";
    request.document = place.write("a.txt", "hello");
    return request;
  }

  // Runs a call, and cancels it as soon as it has come to the server.
  void whileCancelling(const std::function<void(const CancelFlag&)>& call) {
    CancelFlag cancel = false;
    std::thread canceller([&] { server.receive([&] { cancel = true; }); });
    call(cancel);
    canceller.join();
    EXPECT_TRUE(cancel);
  }

  test::TemporaryFolder place;
  SilentServer server;
  const std::string silence = ": the print server at " + server.path() +
                              " does not answer. Check that it runs, then try again.";
};

TEST_F(SilentServerTest, HoldsUpNoListOfPrinters) {
  const auto printers = readPrinters(neverCancelled(), kLittle);
  ASSERT_FALSE(printers);
  EXPECT_EQ(printers.reason(), "The printers cannot be listed" + silence);
}

TEST_F(SilentServerTest, HoldsUpNoState) {
  const auto state = readPrinterState("tav", neverCancelled(), kLittle);
  ASSERT_FALSE(state);
  EXPECT_EQ(state.reason(), "The printer \"tav\" cannot be asked for its state" + silence);
}

TEST_F(SilentServerTest, HoldsUpNoPPD) {
  const auto ppd = readPrinterPPD("tav", neverCancelled(), kLittle);
  ASSERT_FALSE(ppd);
  EXPECT_EQ(ppd.reason(), "The description of the printer \"tav\" cannot be read" + silence);
}

TEST_F(SilentServerTest, HoldsUpNoJob) {
  const auto submission = submitJob(request(), {}, neverCancelled(), {}, kLittle);
  ASSERT_FALSE(submission);
  EXPECT_EQ(submission.reason(), "\"a.txt\" could not be printed on \"tav\"" + silence);
}

// With patience for ever, only the cancelling ends these.

TEST_F(SilentServerTest, HoldsUpNoListThatIsCancelled) {
  whileCancelling([&](const CancelFlag& cancel) {
    const auto printers = readPrinters(cancel, kForEver);
    ASSERT_FALSE(printers);
    EXPECT_EQ(printers.reason(), "The printers cannot be listed: cancelled.");
  });
}

TEST_F(SilentServerTest, HoldsUpNoPPDThatIsCancelled) {
  whileCancelling([&](const CancelFlag& cancel) {
    const auto ppd = readPrinterPPD("tav", cancel, kForEver);
    ASSERT_FALSE(ppd);
    EXPECT_EQ(ppd.reason(), "The description of the printer \"tav\" cannot be read: cancelled.");
  });
}

TEST_F(SilentServerTest, HoldsUpNoJobThatIsCancelled) {
  whileCancelling([&](const CancelFlag& cancel) {
    const auto submission = submitJob(request(), {}, cancel, {}, kForEver);
    ASSERT_TRUE(submission) << submission.reason();
    EXPECT_TRUE(submission->cancelled);
    EXPECT_EQ(submission->jobId, 0);
  });
}

TEST_F(SilentServerTest, IsNotTheSameAsNoServer) {
  server.stop();
  const auto printers = readPrinters();
  ASSERT_FALSE(printers);
  EXPECT_EQ(printers.reason(),
            "The print server at " + server.path() + " cannot be reached. Check that it runs.");
}

}  // namespace
}  // namespace tavrin
