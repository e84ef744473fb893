#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <thread>

#include "host/server/PrivateEntrance.h"
#include "host/support/Cancellation.h"

namespace tavrin {

// What a print server may send in answer to one request, in bytes. The list of a thousand printers
// has about two million.
inline constexpr std::size_t kLongestAnswer = 8 << 20;

// The way to a print server. libcups waits as long as anything comes, be it a byte now and then or
// an answer without an end, and connects again whenever it likes. So all that it and the server say
// to each other goes through here, on a thread of its own, where one deadline, one look at the
// cancel flag and one limit on size hold for whatever the server does. Once one of them has cut the
// line, no other one can be had.
class Relay {
 public:
  // Connects to the server, which takes no longer than the patience; null when nobody is there. The
  // flag must outlive the relay.
  static std::unique_ptr<Relay> to(const std::string& host, int port, const CancelFlag& cancel,
                                   Patience patience);
  ~Relay();
  Relay(const Relay&) = delete;
  Relay& operator=(const Relay&) = delete;

  // Where libcups finds the server.
  AddressListPtr address() const { return entrance.address(); }

  // A new request, or the server has shown that it is alive: the deadline is a whole patience away
  // again, and the answer has no bytes yet.
  void restart();
  // Nothing is wanted of the server for now: there is no deadline until the next restart.
  void pause();

  // Cuts the line, as nobody needs it any more.
  void hangUp();

  // Why the line was cut by itself.
  enum class Cut { none, cancelled, late, tooLong };
  Cut cut() const { return reason; }

 private:
  using Clock = std::chrono::steady_clock;
  class Line;

  Relay(AddressListPtr server, FileDescriptor firstConnection, const CancelFlag& cancel,
        Patience patience);
  void work();
  bool mustCut();
  void wait(const Line* line) const;
  std::unique_ptr<Line> nextLine();

  PrivateEntrance entrance;
  AddressListPtr server;
  FileDescriptor connection;  // the first to the server; later ones are made as they are wanted
  const CancelFlag& cancel;
  const Patience patience;
  std::atomic<Clock::time_point> deadline;
  std::atomic<std::size_t> received = 0;  // of the answer, so far
  std::atomic<Cut> reason = Cut::none;
  std::atomic<bool> over = false;  // nobody needs it any more
  std::thread thread;
};

}  // namespace tavrin
