#pragma once

#include <functional>

#include <QSocketNotifier>

#include "platform/files/FileDescriptor.h"

namespace tavrin {

// The signals that ask a program to end: SIGTERM, SIGINT and SIGHUP. Only the first one is heard,
// by somebody who ends the program in good order. What comes within half a second of it is the same
// wish, as a terminal that closes and a session that ends say it more than once; a signal that
// comes later ends the program at once, as it would have without this. One that was ignored before
// (nohup) stays so. One of these at a time, while there is an event loop.
class EndSignals {
 public:
  // Called from the event loop.
  explicit EndSignals(std::function<void()> heard);
  // Signals are as they were before. Not so once one was heard: the program is ending, and what
  // else belongs to that wish must not disturb it.
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  FileDescriptor readEnd;
  QSocketNotifier notifier;
};

}  // namespace tavrin
