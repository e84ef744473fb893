#include "host/program/EndSignals.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tavrin {

namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

// All that a signal's handler may use.
int gWriteEnd = -1;

// Leaves alone what somebody else has switched off (nohup).
void actAsUsual() {
  for (const int signal : kSignals)
    if (std::signal(signal, SIG_DFL) == SIG_IGN) std::signal(signal, SIG_IGN);
}

void passOn(int) {
  actAsUsual();  // for the second one
  const char byte = 0;
  (void)!write(gWriteEnd, &byte, 1);
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
  for (const int signal : kSignals)
    if (std::signal(signal, passOn) == SIG_IGN) std::signal(signal, SIG_IGN);
}

EndSignals::~EndSignals() {
  actAsUsual();
  close(gWriteEnd);
}

}  // namespace tavrin
