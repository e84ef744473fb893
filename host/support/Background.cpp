#include "host/support/Background.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace tavrin {

namespace {

// The threads that are at work. It is never destroyed, as they may outlive everything else.
class Threads {
 public:
  static Threads& all() {
    static Threads& threads = *std::make_unique<Threads>().release();
    return threads;
  }
  void begin() {
    const std::lock_guard lock(mutex);
    ++count;
  }
  void end() {
    const std::lock_guard lock(mutex);
    --count;
    changed.notify_all();
  }
  bool awaitEnd(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex);
    return changed.wait_for(lock, patience, [this] { return count == 0; });
  }

 private:
  std::mutex mutex;
  std::condition_variable changed;
  int count = 0;
};

}  // namespace

// What the Background and its work share; it lives until the last of them is gone.
struct Background::Post {
  std::mutex mutex;
  std::unique_ptr<QObject> receiver;  // null once the Background is gone
  std::shared_ptr<CancelFlag> flag = std::make_shared<CancelFlag>(false);  // of the work so far

  void send(Answer answer) {
    const std::lock_guard lock(mutex);
    if (receiver)
      QMetaObject::invokeMethod(receiver.get(), std::move(answer), Qt::QueuedConnection);
  }
};

Background::Background() : post(std::make_shared<Post>()) {
  post->receiver = std::make_unique<QObject>();
}

Background::~Background() {
  cancel();
  const std::lock_guard lock(post->mutex);
  post->receiver.reset();  // with the answers that are on their way to it
}

void Background::run(Work work) {
  Threads::all().begin();
  // Nobody joins the thread: it may be stuck in a call that nothing can interrupt.
  std::thread([shared = post, flag = post->flag, job = std::move(work)]() mutable {
    job(*flag, [&shared](Answer answer) { shared->send(std::move(answer)); });
    job = {};
    shared.reset();
    Threads::all().end();
  }).detach();
}

bool Background::awaitEnd(std::chrono::milliseconds patience) {
  return Threads::all().awaitEnd(patience);
}

void Background::cancel() {
  *post->flag = true;
  post->flag = std::make_shared<CancelFlag>(false);
}

}  // namespace tavrin
