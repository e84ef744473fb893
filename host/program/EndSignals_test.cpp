#include "host/program/EndSignals.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <thread>

#include <QCoreApplication>
#include <gtest/gtest.h>

#include "tests/fixtures/DefaultSignals.h"

namespace tavrin {
namespace {

class EndSignalsTest : public testing::Test {
 protected:
  static void waitMilliseconds(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
  }

  const test::DefaultSignals asUsual;
};

TEST_F(EndSignalsTest, AreHeardFromTheEventLoop) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    int heard = 0;
    const EndSignals watch([&] { ++heard; });
    raise(signal);
    EXPECT_EQ(heard, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(heard, 1) << strsignal(signal);
  }
}

TEST_F(EndSignalsTest, ThatComeTogetherAreOneWish) {
  const auto endTheSession = [] {
    int heard = 0;
    {
      const EndSignals watch([&] { ++heard; });
      raise(SIGTERM);
      raise(SIGHUP);
      QCoreApplication::processEvents();
      raise(SIGHUP);
      QCoreApplication::processEvents();
    }
    raise(SIGTERM);  // while the program ends
    std::_Exit(heard);
  };
  EXPECT_EXIT(endTheSession(), testing::ExitedWithCode(1), "");
}

TEST_F(EndSignalsTest, OneThatComesLaterEndsTheProgram) {
  const auto losePatience = [] {
    const EndSignals watch([] {});
    raise(SIGINT);
    QCoreApplication::processEvents();
    waitMilliseconds(600);
    raise(SIGTERM);
  };
  EXPECT_EXIT(losePatience(), testing::KilledBySignal(SIGTERM), "");
}

TEST_F(EndSignalsTest, OneThatComesLaterEndsAProgramThatIsEnding) {
  const auto losePatience = [] {
    {
      const EndSignals watch([] {});
      raise(SIGHUP);
    }
    waitMilliseconds(600);
    raise(SIGHUP);
  };
  EXPECT_EXIT(losePatience(), testing::KilledBySignal(SIGHUP), "");
}

TEST_F(EndSignalsTest, AreAsTheyWereWhenNoneWasHeard) {
  {
    const EndSignals watch([] {});
  }
  for (const int signal : {SIGTERM, SIGINT, SIGHUP})
    EXPECT_EQ(std::signal(signal, SIG_DFL), SIG_DFL) << strsignal(signal);
}

TEST_F(EndSignalsTest, OneThatWasSwitchedOffStaysOff) {
  std::signal(SIGHUP, SIG_IGN);
  int heard = 0;
  {
    const EndSignals watch([&] { ++heard; });
    raise(SIGHUP);
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(heard, 0);
  EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN) << "also when it is over";
}

}  // namespace
}  // namespace tavrin
