#include "host/program/EndSignals.h"

#include <csignal>

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(EndSignals, AreHeardFromTheEventLoop) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    int heard = 0;
    const EndSignals watch([&] { ++heard; });
    raise(signal);
    EXPECT_EQ(heard, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(heard, 1) << strsignal(signal);
  }
}

TEST(EndSignals, TheSecondOneEndsTheProgram) {
  EXPECT_EXIT(
      {
        const EndSignals watch([] {});
        raise(SIGINT);
        QCoreApplication::processEvents();
        raise(SIGTERM);
      },
      testing::KilledBySignal(SIGTERM), "");
}

TEST(EndSignals, OneThatWasSwitchedOffStaysOff) {
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
