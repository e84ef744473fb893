#pragma once

#include <functional>

#include <QSocketNotifier>

#include "platform/files/FileDescriptor.h"

namespace tavrin {

// The signals that ask a program to end: SIGTERM, SIGINT and SIGHUP. Only the first one is heard,
// by somebody who ends the program in good order; a second one ends it at once, as it would have
// without this. One of these at a time, while there is an event loop.
class EndSignals {
 public:
  // Called from the event loop.
  explicit EndSignals(std::function<void()> heard);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  FileDescriptor readEnd;
  QSocketNotifier notifier;
};

}  // namespace tavrin
