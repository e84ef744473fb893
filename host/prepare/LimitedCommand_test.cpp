#include "host/prepare/LimitedCommand.h"

#include <csignal>
#include <memory>
#include <optional>

#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

using End = LimitedCommand::End;

// Commands of a shell, which stands for any program.
class LimitedCommandTest : public EventLoopTest {
 protected:
  std::unique_ptr<LimitedCommand> command(const char* script) {
    auto made = std::make_unique<LimitedCommand>(LimitedCommand::Call{
        "/bin/sh", {"-c", script}, place.path(), place.path() / "output", limits});
    QObject::connect(made.get(), &LimitedCommand::ended, [this](End how) { end = how; });
    made->start();
    return made;
  }
  End endOf(const char* script) {
    end.reset();
    const auto running = command(script);
    EXPECT_TRUE(eventually([&] { return end.has_value(); }));
    return end.value_or(End::well);
  }
  std::string output() const { return test::textOf(place.path() / "output"); }

  test::TemporaryFolder place;
  LimitedCommand::Limits limits{std::chrono::seconds(20), 1 << 30, 1 << 20};
  std::optional<End> end;
};

TEST_F(LimitedCommandTest, TellsHowItEnds) {
  EXPECT_EQ(endOf("exit 0"), End::well);
  EXPECT_EQ(endOf("exit 4"), End::failed);
  EXPECT_EQ(endOf("kill -9 $$"), End::failed);
}

TEST_F(LimitedCommandTest, FailsWhereThereIsNoSuchProgram) {
  LimitedCommand missing({"/nowhere/at-all", {}, place.path(), place.path() / "output", limits});
  QObject::connect(&missing, &LimitedCommand::ended, [this](End how) { end = how; });
  missing.start();
  EXPECT_TRUE(eventually([&] { return end == End::failed; }));
}

TEST_F(LimitedCommandTest, WritesIntoItsFileAndHasItsFolder) {
  EXPECT_EQ(endOf("echo $TMPDIR; echo hidden >&2; read line; echo no input: $?"), End::well);
  EXPECT_EQ(output(), place.path().string() + "\nno input: 1\n");
}

TEST_F(LimitedCommandTest, MayNotWriteMoreThanItsLimit) {
  EXPECT_EQ(endOf("head -c 2000000 /dev/zero"), End::failed);
  EXPECT_EQ(output().size(), std::size_t{1} << 20);
}

TEST_F(LimitedCommandTest, MayNotTakeMoreMemoryThanItsLimit) {
  limits.memory = 64 << 20;
  EXPECT_EQ(endOf("head -c 100m /dev/zero | tail -c 100m | wc -c; exit 3"), End::failed);
  EXPECT_NE(output(), "104857600\n");
}

TEST_F(LimitedCommandTest, EndsWhenItsTimeIsOver) {
  limits.time = std::chrono::seconds(1);
  EXPECT_EQ(endOf("sleep 1000"), End::slow);
}

TEST_F(LimitedCommandTest, TakesWhatItHasStartedWithIt) {
  auto running = command("sleep 1000 & echo $!; wait");
  ASSERT_TRUE(eventually([this] { return !output().empty(); }));
  const pid_t child = std::stoi(output());
  EXPECT_EQ(kill(child, 0), 0);
  running.reset();
  const auto isGone = [child] {  // or waits for its new parent to take note
    const std::string state = test::textOf("/proc/" + std::to_string(child) + "/stat");
    return state.empty() || state.find(") Z") != std::string::npos;
  };
  EXPECT_TRUE(eventually(isGone));
}

TEST_F(LimitedCommandTest, IsNotWaitedForWhereItIsDroppedAtOnce) {
  command("sleep 20; echo finished").reset();
  EXPECT_EQ(output(), "");
}

TEST_F(LimitedCommandTest, MayBeDeletedByWhoeverHearsOfItsEnd) {
  auto running = command("exit 0");
  QObject::connect(running.get(), &LimitedCommand::ended, [&] { running.reset(); });
  EXPECT_TRUE(eventually([&] { return !running; }));
}

}  // namespace
}  // namespace tavrin
