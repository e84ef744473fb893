#include "host/support/Background.h"

#include <mutex>
#include <thread>
#include <utility>

namespace tavrin {

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
  // Nobody joins the thread: it may be stuck in a call that nothing can interrupt.
  std::thread([shared = post, flag = post->flag, job = std::move(work)] {
    job(*flag, [&shared](Answer answer) { shared->send(std::move(answer)); });
  }).detach();
}

void Background::cancel() {
  *post->flag = true;
  post->flag = std::make_shared<CancelFlag>(false);
}

}  // namespace tavrin
