#include "host/program/Launcher.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/files/FileDescriptor.h"

namespace tavrin {
namespace {

class LauncherTest : public testing::Test {
 protected:
  // Runs in the process of a death test, which must not change this one's streams.
  struct Start {
    FileDescriptor in{open("/dev/null", O_RDWR)};
    FileDescriptor out{open("/dev/null", O_RDWR)};
    FileDescriptor err{open("/dev/null", O_RDWR)};
    std::string display = ":0";
    std::string platform;
    int terminal = -1;  // to belong to
  };

  [[noreturn]] static void answer(const Start& start) {
    setsid();
    if (start.terminal >= 0) ioctl(start.terminal, TIOCSCTTY, 0);
    unsetenv("WAYLAND_DISPLAY");
    setenv("DISPLAY", start.display.c_str(), 1);
    setenv("QT_QPA_PLATFORM", start.platform.c_str(), 1);
    dup2(start.in.get(), STDIN_FILENO);
    dup2(start.out.get(), STDOUT_FILENO);
    dup2(start.err.get(), STDERR_FILENO);
    std::_Exit(isStartedFromLauncher());
  }
  static void expect(bool launcher, const Start& start) {
    EXPECT_EXIT(answer(start), testing::ExitedWithCode(launcher), "");
  }
};

TEST_F(LauncherTest, IsWhereNobodyReadsTheStreams) {
  expect(true, {});
  Start journal;
  std::array<int, 2> ends{};
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
  journal.err = FileDescriptor(ends[0]);
  const FileDescriptor other(ends[1]);
  expect(true, journal);
}

TEST_F(LauncherTest, IsNotWhereAPipeIsRead) {
  for (FileDescriptor Start::*stream : {&Start::in, &Start::out, &Start::err}) {
    Start script;
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const FileDescriptor other(ends[0]);
    script.*stream = FileDescriptor(ends[1]);
    expect(false, script);
  }
}

TEST_F(LauncherTest, IsNotATerminal) {
  const FileDescriptor leader(posix_openpt(O_RDWR | O_NOCTTY));
  ASSERT_EQ(unlockpt(leader.get()), 0);
  Start start;
  start.err = FileDescriptor(open(ptsname(leader.get()), O_RDWR | O_NOCTTY));
  ASSERT_TRUE(start.err);
  expect(false, start);
}

TEST_F(LauncherTest, IsNotAScriptInATerminalThatKeepsAllStreams) {
  const FileDescriptor leader(posix_openpt(O_RDWR | O_NOCTTY));
  ASSERT_EQ(unlockpt(leader.get()), 0);
  const FileDescriptor terminal(open(ptsname(leader.get()), O_RDWR | O_NOCTTY));
  Start start;
  start.terminal = terminal.get();
  expect(false, start);
}

TEST_F(LauncherTest, NeedsAScreenThatSomebodySees) {
  Start start;
  start.display = "";
  expect(false, start);
  start.display = ":0";
  for (const char* platform : {"offscreen", "minimal", "offscreen:configfile=x"}) {
    start.platform = platform;
    expect(false, start);
  }
  start.platform = "xcb";
  expect(true, start);
}

}  // namespace
}  // namespace tavrin
