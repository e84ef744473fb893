#pragma once

#include <memory>
#include <string>

#include "host/support/Cancellation.h"
#include "platform/text/Result.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

// A connection of one's own to the print server. libcups' own connection waits for minutes for a
// server that accepts and says nothing; this one gives up when its patience is over or when it is
// cancelled, whichever comes first.
class PrintServer {
 public:
  // Connects to the server that the environment and the configuration of the print system name.
  // Takes no longer than the patience. The flag must outlive the connection.
  static Result<PrintServer> connect(const CancelFlag& cancel, Patience patience);
  ~PrintServer();
  PrintServer(PrintServer&&) noexcept;
  PrintServer& operator=(PrintServer&&) noexcept;

  http_t* http() const { return connection.get(); }
  // The patience starts anew: the server has shown that it lives.
  void refresh();
  bool cancelled() const;
  // Whether the server was given up.
  bool ranOut() const;
  // Why the last request failed: the print server's silence, or what libcups says of the request
  // that the words name ("The printer \"x\" could not be read").
  Failure failure(const std::string& what) const;

 private:
  struct Watch;
  explicit PrintServer(std::unique_ptr<Watch> watch);

  std::unique_ptr<Watch> watch;  // before the connection, which calls it until it is closed
  HttpPtr connection;
};

}  // namespace tavrin
