#include <chrono>
#include <functional>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

#include "host/Destinations.h"
#include "host/FileDescriptor.h"
#include "host/JobSubmitter.h"
#include "host/TemporaryFolder.h"

namespace tavrin {
namespace {

constexpr Patience kLittle = std::chrono::milliseconds(300);
constexpr Patience kForEver = std::chrono::hours(1);

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

  JobRequest request() {
    JobRequest request;
    request.printer = "tav";
    request.document = place.write("a.txt", "hello");
    return request;
  }

  // Runs a call, and cancels it as soon as it has come to the server.
  void whileCancelling(const std::function<void(const CancelFlag&)>& call) {
    CancelFlag cancel = false;
    std::thread canceller([&] {
      const FileDescriptor caller(accept(server.get(), nullptr, nullptr));
      char byte;
      EXPECT_EQ(read(caller.get(), &byte, 1), 1);
      cancel = true;
      while (read(caller.get(), &byte, 1) > 0) continue;  // until the caller hangs up
    });
    call(cancel);
    canceller.join();
  }

  TemporaryFolder place;
  std::string path = (place.path() / "cups.sock").string();
  FileDescriptor server{socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
  const std::string silence =
      ": the print server at " + path + " does not answer. Check that it runs, then try again.";
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
  server.close();
  std::filesystem::remove(path);
  const auto printers = readPrinters();
  ASSERT_FALSE(printers);
  EXPECT_EQ(printers.reason(),
            "The print server at " + path + " cannot be reached. Check that it runs.");
}

}  // namespace
}  // namespace tavrin
