#pragma once

#include <memory>
#include <string>

#include "host/server/Relay.h"
#include "host/support/Cancellable.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

inline constexpr Patience kUsualPatience = std::chrono::seconds(4);

// A connection of one's own to the print server, through a Relay: no request on it lasts longer
// than the patience, gets more than any answer can have, or goes on once it is cancelled.
class PrintServer {
 public:
  // Connects to the server that the environment and the configuration of the print system name.
  // Takes no longer than the patience. The flag must outlive the connection.
  static Cancellable<PrintServer> connect(const CancelFlag& cancel, Patience patience);
  ~PrintServer();
  PrintServer(PrintServer&&) noexcept;
  PrintServer& operator=(PrintServer&&) noexcept;

  http_t* http() const { return connection.get(); }
  // The patience begins anew: with another request, or because the server has shown that it is
  // alive.
  void refresh() { relay->restart(); }
  // Until the next refresh the patience does not end: the server is not what is waited for.
  void pause() { relay->pause(); }
  // Whether the last request ended early: it lasted too long, its answer did, or it was cancelled.
  bool gaveUp() const { return relay->cut() != Relay::Cut::none; }
  // Why the last request has no answer. A reason begins with the words, which say what
  // failed ("The printer \"x\" cannot be read"), and goes on with what the print server did
  // instead of answering, or what libcups says of the request.
  NoValue noAnswer(const std::string& words) const;
  // The same where the server said in HTTP what is wrong; an error of HTTP is no answer at all.
  NoValue refused(const std::string& words, http_status_t status) const;

 private:
  PrintServer(std::unique_ptr<Relay> relay, HttpPtr connection);
  std::string whatItDid() const;

  std::unique_ptr<Relay> relay;  // before the connection, which goes through it
  HttpPtr connection;
};

}  // namespace tavrin
