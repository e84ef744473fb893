#pragma once

#include <memory>
#include <string>

#include "host/support/Cancellable.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

inline constexpr Patience kUsualPatience = std::chrono::seconds(4);

// A connection of one's own to the print server. libcups' own connection waits for minutes for a
// server that accepts and says nothing; this one gives up soon after its patience is over, and
// within about 3 seconds once it is cancelled.
class PrintServer {
 public:
  // Connects to the server that the environment and the configuration of the print system name.
  // Takes no longer than the patience. The flag must outlive the connection.
  static Cancellable<PrintServer> connect(const CancelFlag& cancel, Patience patience);
  ~PrintServer();
  PrintServer(PrintServer&&) noexcept;
  PrintServer& operator=(PrintServer&&) noexcept;

  http_t* http() const { return connection.get(); }
  // Restarts the patience: the server has shown that it is alive.
  void refresh();
  // Whether the last request ended early: the patience is over, or it was cancelled.
  bool gaveUp() const;
  // Why the last request has no answer. A reason begins with the words, which say what
  // failed ("The printer \"x\" cannot be read"), and goes on with the print server's silence or
  // what libcups says of the request.
  NoValue noAnswer(const std::string& words) const;

 private:
  struct Watch;
  explicit PrintServer(std::unique_ptr<Watch> watch);

  std::unique_ptr<Watch> watch;  // before the connection, which calls it until it is closed
  HttpPtr connection;
};

}  // namespace tavrin
