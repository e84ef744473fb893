#include "host/support/Background.h"

#include <condition_variable>
#include <mutex>
#include <thread>

#include <QThread>

#include "tests/fixtures/EventLoopTest.h"

namespace tavrin {
namespace {

using BackgroundTest = EventLoopTest;

TEST_F(BackgroundTest, AnswersOnItsOwnThread) {
  Background background;
  const auto* here = QThread::currentThread();
  const QThread* answered = nullptr;
  background.run([&](const CancelFlag&, const Background::Send& send) {
    EXPECT_NE(QThread::currentThread(), here);
    send([&] { answered = QThread::currentThread(); });
  });
  EXPECT_TRUE(eventually([&] { return answered != nullptr; }));
  EXPECT_EQ(answered, here);
}

// Work that is stuck until somebody lets it go.
struct Stuck {
  std::mutex mutex;
  std::condition_variable changed;
  bool started = false, released = false, finished = false, sawCancel = false;

  void set(bool Stuck::*flag) {
    const std::lock_guard lock(mutex);
    this->*flag = true;
    changed.notify_all();
  }
  void wait(bool Stuck::*flag) {
    std::unique_lock lock(mutex);
    changed.wait(lock, [&] { return this->*flag; });
  }
};

TEST_F(BackgroundTest, AProgramCanWaitForTheEndOfAllWork) {
  using std::chrono::milliseconds;
  const auto stuck = std::make_shared<Stuck>();
  std::weak_ptr<Stuck> held = stuck;
  {
    Background background;
    background.run(
        [stuck](const CancelFlag&, const Background::Send&) { stuck->wait(&Stuck::released); });
  }
  EXPECT_FALSE(Background::awaitEnd(milliseconds(1)));
  stuck->set(&Stuck::released);
  EXPECT_TRUE(Background::awaitEnd(milliseconds(20000)));
  EXPECT_EQ(held.use_count(), 1) << "what the work held has gone";
}

TEST_F(BackgroundTest, DoesNotWaitForWorkThatIsStuck) {
  const auto stuck = std::make_shared<Stuck>();
  bool answered = false;
  {
    Background background;
    background.run([stuck, &answered](const CancelFlag& cancel, const Background::Send& send) {
      stuck->set(&Stuck::started);
      stuck->wait(&Stuck::released);
      stuck->sawCancel = cancel;
      send([&answered] { answered = true; });
      stuck->set(&Stuck::finished);
    });
    stuck->wait(&Stuck::started);
  }
  stuck->set(&Stuck::released);
  stuck->wait(&Stuck::finished);
  QCoreApplication::processEvents();
  EXPECT_TRUE(stuck->sawCancel);
  EXPECT_FALSE(answered);
}

TEST_F(BackgroundTest, CancelsTheWorkSoFarOnly) {
  Background background;
  int cancelled = 0, finished = 0;
  background.run([&](const CancelFlag& cancel, const Background::Send& send) {
    while (!cancel) std::this_thread::yield();
    send([&] { ++cancelled; });
  });
  background.cancel();
  background.run([&](const CancelFlag& cancel, const Background::Send& send) {
    if (!cancel) send([&] { ++finished; });
  });
  EXPECT_TRUE(eventually([&] { return cancelled == 1 && finished == 1; }));
}

}  // namespace
}  // namespace tavrin
