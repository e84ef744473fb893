#pragma once

#include <functional>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "host/support/Cancellation.h"
#include "tests/fixtures/TemporaryFolder.h"
#include "tests/servers/SilentServer.h"

namespace tavrin {

// What happens to calls that a print server never answers.
class SilentServerTest : public testing::Test {
 protected:
  static constexpr Patience kLittle = std::chrono::milliseconds(300);
  static constexpr Patience kForEver = std::chrono::hours(1);

  // Makes a call, and cancels it as soon as it has come to the server.
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

}  // namespace tavrin
