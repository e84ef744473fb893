#include "host/server/PrintServer.h"

#include <algorithm>
#include <sys/socket.h>

namespace tavrin {

namespace {

using Clock = std::chrono::steady_clock;

// How often a waiting request looks whether it should give up.
constexpr double kWatchInterval = 0.25;

const char* noPassword(const char*, http_t*, const char*, const char*, void*) { return nullptr; }

bool wantsPassword() {
  return cupsLastError() == IPP_STATUS_ERROR_NOT_AUTHORIZED ||
         cupsLastError() == IPP_STATUS_ERROR_NOT_AUTHENTICATED ||
         cupsLastError() == IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED;
}

}  // namespace

struct PrintServer::Watch {
  const CancelFlag& cancel;
  Patience patience;
  Clock::time_point deadline = {};
  bool ranOut = false;

  void restart() { deadline = Clock::now() + patience; }

  // libcups asks this whenever nothing has come for a while; 0 makes it give up.
  static int keepWaiting(http_t*, void* data) {
    auto& watch = *static_cast<Watch*>(data);
    watch.ranOut = watch.ranOut || Clock::now() >= watch.deadline;
    return watch.ranOut || watch.cancel ? 0 : 1;
  }
};

PrintServer::PrintServer(std::unique_ptr<Watch> itsWatch) : watch(std::move(itsWatch)) {}
PrintServer::PrintServer(PrintServer&&) noexcept = default;
PrintServer::~PrintServer() = default;

PrintServer& PrintServer::operator=(PrintServer&& other) noexcept {
  connection = std::move(other.connection);  // it may call its watch until it is closed
  watch = std::move(other.watch);
  return *this;
}

Cancellable<PrintServer> PrintServer::connect(const CancelFlag& cancel, Patience patience) {
  if (cancel) return Cancelled{};
  PrintServer server(std::make_unique<Watch>(Watch{cancel, patience}));
  server.watch->restart();
  server.connection.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                       cupsEncryption(), 1, static_cast<int>(patience.count()),
                                       nullptr));
  if (!server.connection)
    return Failure{"The print server at " + std::string(cupsServer()) +
                   " cannot be reached. Check that it runs."};
  // libcups would ask for it in the terminal, where nobody looks. Holds for the calling thread.
  cupsSetPasswordCB2(noPassword, nullptr);
  httpSetTimeout(server.http(), kWatchInterval, Watch::keepWaiting, server.watch.get());
  return server;
}

void PrintServer::refresh() { watch->restart(); }

bool PrintServer::gaveUp() const { return watch->ranOut || watch->cancel; }

NoValue PrintServer::noAnswer(const std::string& words) const {
  if (watch->cancel) return Cancelled{};
  if (watch->ranOut)
    return Failure{words + ": the print server at " + cupsServer() +
                   " does not answer. Check that it runs, then try again."};
  if (wantsPassword())
    return Failure{words +
                   ": the print server does not allow it, or wants a password. Ask whoever looks "
                   "after the printers, or print with lp, which can ask for the password."};
  std::string reason = cupsLastErrorString();
  while (reason.ends_with('.')) reason.pop_back();
  return Failure{words + ": " + reason + "."};
}

}  // namespace tavrin
