#include <chrono>
#include <functional>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>

#include <gtest/gtest.h>

#include "host/Destinations.h"
#include "host/FileDescriptor.h"
#include "host/JobSubmitter.h"
#include "host/TemporaryFolder.h"

namespace tavrin {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::seconds;

// A print server that lets everybody in and says nothing.
class SilentServerTest : public testing::Test {
 protected:
  SilentServerTest() {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof(address.sun_path) - 1);
    EXPECT_EQ(bind(server.get(), reinterpret_cast<sockaddr*>(&address), sizeof(address)), 0);
    EXPECT_EQ(listen(server.get(), 50), 0);
    setenv("CUPS_SERVER", path.c_str(), 1);
    cupsSetServer(nullptr);  // libcups looks at the environment again
  }
  ~SilentServerTest() override { unsetenv("CUPS_SERVER"); }

  // Runs a request and cancels it after a while, if it is still waiting then.
  Clock::duration timeUntilDone(const std::function<void(const CancelFlag&)>& request,
                                std::chrono::milliseconds cancelAfter = seconds(30)) {
    CancelFlag cancel = false;
    std::atomic<bool> done = false;
    const auto start = Clock::now();
    std::thread canceller([&] {
      while (!done && Clock::now() < start + cancelAfter)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
      cancel = true;
    });
    request(cancel);
    const auto time = Clock::now() - start;
    done = true;
    canceller.join();
    return time;
  }

  TemporaryFolder place;
  std::string path = (place.path() / "cups.sock").string();
  FileDescriptor server{socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
  const std::string silence =
      ": the print server at " + path + " does not answer. Check that it runs, then try again.";
};

TEST_F(SilentServerTest, HoldsUpNoListOfPrinters) {
  const auto time = timeUntilDone([&](const CancelFlag& cancel) {
    const auto printers = readPrinters(cancel);
    ASSERT_FALSE(printers);
    EXPECT_EQ(printers.reason(), "The printers cannot be listed" + silence);
  });
  EXPECT_LT(time, seconds(8));
}

TEST_F(SilentServerTest, HoldsUpNoState) {
  const auto time = timeUntilDone([&](const CancelFlag& cancel) {
    const auto state = readPrinterState("tav", cancel);
    ASSERT_FALSE(state);
    EXPECT_EQ(state.reason(), "The printer \"tav\" cannot be asked for its state" + silence);
  });
  EXPECT_LT(time, seconds(8));
}

TEST_F(SilentServerTest, HoldsUpNoPPD) {
  const auto time = timeUntilDone([&](const CancelFlag& cancel) {
    const auto ppd = readPrinterPPD("tav", cancel);
    ASSERT_FALSE(ppd);
    EXPECT_EQ(ppd.reason(), "The description of the printer \"tav\" cannot be read" + silence);
  });
  EXPECT_LT(time, seconds(8));
}

TEST_F(SilentServerTest, HoldsUpNothingThatIsCancelled) {
  const auto waited = std::chrono::milliseconds(100);
  const auto soon = std::chrono::milliseconds(4000);
  EXPECT_LT(timeUntilDone([](const CancelFlag& c) { EXPECT_FALSE(readPrinters(c)); }, waited),
            soon);
  EXPECT_LT(
      timeUntilDone([](const CancelFlag& c) { EXPECT_FALSE(readPrinterPPD("t", c)); }, waited),
      soon);
  JobRequest request;
  request.printer = "tav";
  request.document = place.write("a.txt", "hello");
  const auto submit = [&](const CancelFlag& cancel) {
    const auto submission = submitJob(request, {}, cancel);
    ASSERT_TRUE(submission) << submission.reason();
    EXPECT_TRUE(submission->cancelled);
    EXPECT_EQ(submission->jobId, 0);
  };
  EXPECT_LT(timeUntilDone(submit, waited), soon);
}

TEST_F(SilentServerTest, HoldsUpNoJob) {
  JobRequest request;
  request.printer = "tav";
  request.document = place.write("a.txt", "hello");
  const auto time = timeUntilDone([&](const CancelFlag& cancel) {
    const auto submission = submitJob(request, {}, cancel);
    ASSERT_FALSE(submission);
    EXPECT_EQ(submission.reason(), "\"a.txt\" could not be printed on \"tav\"" + silence);
  });
  EXPECT_LT(time, seconds(15));
}

TEST_F(SilentServerTest, IsNotTheSameAsNoServer) {
  server.close();
  std::filesystem::remove(path);
  const auto printers = readPrinters();
  ASSERT_FALSE(printers);
  EXPECT_EQ(printers.reason(),
            "The print server at " + path + " cannot be reached. Check that it runs.");
}

}  // namespace
}  // namespace tavrin
