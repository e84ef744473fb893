#pragma once

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "host/support/Cancellation.h"
#include "tests/fixtures/TemporaryFolder.h"
#include "tests/servers/FaultyServer.h"

namespace tavrin {

// What happens to calls that a print server never answers.
class SilentServerTest : public testing::Test {
 protected:
  static constexpr Patience kLittle = std::chrono::milliseconds(300);
  static constexpr Patience kForEver = std::chrono::hours(1);

  // Makes a call, and cancels it as soon as it has come to the server.
  void whileCancelling(const std::function<void(const CancelFlag&)>& call) {
    CancelFlag cancel = false;
    server.whenAsked([&] { cancel = true; });
    call(cancel);
    EXPECT_TRUE(cancel);
  }

  test::TemporaryFolder place;
  FaultyServer server{Fault::silent};
  const std::string silence = ": the print server at " + server.path() +
                              " does not answer. Check that it runs, then try again.";
};

}  // namespace tavrin
