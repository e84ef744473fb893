#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "host/support/Cancellation.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

// Ends what takes too long. libcups waits as long as anything comes, be it a byte now and then or
// headers without an end. The guard looks at the clock and at the cancel flag on a thread of its
// own, and hangs up for libcups, which then gives up whatever it is doing.
class RequestGuard {
 public:
  // Guards a connection from now on, with a whole patience. Both must outlive the guard.
  RequestGuard(http_t& http, const CancelFlag& cancel, Patience patience);
  ~RequestGuard();
  RequestGuard(const RequestGuard&) = delete;
  RequestGuard& operator=(const RequestGuard&) = delete;

  // Connects, or connects anew, before the deadline. False when nobody is there.
  bool connect();

  // A new request, or the server has shown that it is alive: the deadline is a whole patience away
  // again. It moves by itself while the server takes what is sent to it.
  void restart();
  // A part of the answer has come: the deadline is a whole patience away again, but no later than a
  // few of them from the restart.
  void goOn();
  // Nothing is wanted of the server for now: there is no deadline until the next restart.
  void pause();

  // Why the guard hung up. It is for good: whoever connects again is cut off again.
  enum class Cut { none, cancelled, late };
  Cut cut() const;

 private:
  using Clock = std::chrono::steady_clock;

  void work();
  void look();
  bool takesWhatIsSent();

  http_t& http;
  const CancelFlag& cancel;
  const Patience patience;
  mutable std::mutex mutex;  // of all below
  std::condition_variable wake;
  bool over = false;
  Clock::time_point deadline;
  Clock::time_point latest;  // that the deadline may move to while an answer comes
  Cut reason = Cut::none;
  int unsent = 0;          // bytes that the server had not taken at the last look
  int stopConnecting = 0;  // not 0: libcups gives up connecting
  std::thread thread;
};

}  // namespace tavrin
