#include "host/program/EndSignals.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstdint>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace tavrin {

namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};
constexpr std::int64_t kOneWish = 500;  // milliseconds
constexpr std::int64_t kNever = -1;

// All that a signal's handler may use. Two signals may arrive in two threads at the same time.
int gWriteEnd = -1;
std::atomic<std::int64_t> gFirst = kNever;  // when the first one came, as milliseconds() says
static_assert(decltype(gFirst)::is_always_lock_free, "a handler cannot wait for a lock");

std::int64_t milliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1000000;
}

// Leaves alone what somebody else has switched off (nohup).
void answerAllWith(void (*handler)(int)) {
  for (const int signal : kSignals)
    if (std::signal(signal, handler) == SIG_IGN) std::signal(signal, SIG_IGN);
}

void passOn(int signal) {
  const std::int64_t now = milliseconds();
  std::int64_t first = kNever;
  if (gFirst.compare_exchange_strong(first, now)) {
    const char byte = 0;
    (void)!write(gWriteEnd, &byte, 1);
  } else if (now - first > kOneWish) {
    std::signal(signal, SIG_DFL);
    raise(signal);  // arrives when this handler returns
  }
}

// A pipe of which the handler has the other end. A handler may do next to nothing; what is to be
// done waits for the event loop.
int makePipe() {
  std::array<int, 2> ends{-1, -1};
  (void)!pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK);
  gWriteEnd = ends[1];
  return ends[0];
}

}  // namespace

EndSignals::EndSignals(std::function<void()> heard)
    : readEnd(makePipe()), notifier(readEnd.get(), QSocketNotifier::Read) {
  QObject::connect(&notifier, &QSocketNotifier::activated, [this, call = std::move(heard)] {
    notifier.setEnabled(false);
    call();
  });
  gFirst = kNever;
  answerAllWith(passOn);
}

EndSignals::~EndSignals() {
  if (gFirst == kNever) answerAllWith(SIG_DFL);
  close(gWriteEnd);
}

}  // namespace tavrin
