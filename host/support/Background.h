#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include <QObject>

#include "host/support/Cancellation.h"

namespace tavrin {

// Runs work that may wait for somebody else, so that the user-interface thread need not. The
// destructor tells the work to give up and does not wait for it, however stuck it is; the answer is
// then dropped.
class Background {
 public:
  // What comes back: called on the thread that made the Background, from its event loop.
  using Answer = std::function<void()>;
  // Sends an answer; may be called any number of times, from the work's thread.
  using Send = std::function<void(Answer)>;
  // The work itself. It must own or share all that it touches.
  using Work = std::function<void(const CancelFlag& cancel, const Send& send)>;

  Background();
  ~Background();
  Background(const Background&) = delete;
  Background& operator=(const Background&) = delete;

  // Starts work on a thread of its own.
  void run(Work work);
  // Tells all work so far to give up; its answers still come.
  void cancel();

  // For the end of a program, whose statics must not go while a thread may use them: waits until no
  // work of any Background is left. False if some is still there after that time, stuck; the
  // program then ends without taking itself apart (std::_Exit).
  static bool awaitEnd(std::chrono::milliseconds patience);

 private:
  struct Post;

  std::shared_ptr<Post> post;
};

}  // namespace tavrin
