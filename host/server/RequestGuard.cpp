#include "host/server/RequestGuard.h"

#include <algorithm>
#include <linux/sockios.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <utility>

namespace tavrin {

namespace {

constexpr std::chrono::milliseconds kLookInterval(50);
constexpr int kLongestAnswerInPatiences = 5;

}  // namespace

RequestGuard::RequestGuard(http_t& connection, const CancelFlag& cancelFlag, Patience itsPatience)
    : http(connection),
      cancel(cancelFlag),
      patience(itsPatience),
      deadline(Clock::now() + itsPatience),
      latest(deadline),
      thread([this] { work(); }) {}

RequestGuard::~RequestGuard() {
  {
    const std::lock_guard lock(mutex);
    over = true;
  }
  wake.notify_all();
  thread.join();
}

bool RequestGuard::connect() {
  // The guard itself ends this in time; libcups takes 0 for as long as it likes.
  constexpr int kLongMilliseconds = 1'000'000;
  return httpReconnect2(&http, kLongMilliseconds, &stopConnecting) == 0;
}

void RequestGuard::restart() {
  const std::lock_guard lock(mutex);
  deadline = Clock::now() + patience;
  latest = Clock::now() + patience * kLongestAnswerInPatiences;
}

void RequestGuard::goOn() {
  const std::lock_guard lock(mutex);
  deadline = std::min(Clock::now() + patience, latest);
}

void RequestGuard::pause() {
  const std::lock_guard lock(mutex);
  deadline = Clock::time_point::max();
}

RequestGuard::Cut RequestGuard::cut() const {
  const std::lock_guard lock(mutex);
  return reason;
}

void RequestGuard::work() {
  std::unique_lock lock(mutex);
  while (!wake.wait_for(lock, kLookInterval, [this] { return over; })) look();
}

void RequestGuard::look() {
  const bool isPaused = deadline == Clock::time_point::max();
  if (takesWhatIsSent() && !isPaused) deadline = Clock::now() + patience;
  if (reason == Cut::none && cancel) reason = Cut::cancelled;
  if (reason == Cut::none && Clock::now() >= deadline) reason = Cut::late;
  if (reason == Cut::none) return;
  stopConnecting = 1;
  shutdown(httpGetFd(&http), SHUT_RDWR);  // at every look, as libcups may have connected meanwhile
}

// Whether the server has taken bytes since the last look: a slow way is no silence.
bool RequestGuard::takesWhatIsSent() {
  int left = 0;
  if (ioctl(httpGetFd(&http), SIOCOUTQ, &left) != 0) left = 0;
  return left < std::exchange(unsent, left);
}

}  // namespace tavrin
