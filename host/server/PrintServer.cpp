#include "host/server/PrintServer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <sys/socket.h>

#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

const char* noPassword(const char*, http_t*, const char*, const char*, void*) { return nullptr; }

bool wantsPassword() {
  return cupsLastError() == IPP_STATUS_ERROR_NOT_AUTHORIZED ||
         cupsLastError() == IPP_STATUS_ERROR_NOT_AUTHENTICATED ||
         cupsLastError() == IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED;
}

constexpr char kWantsPassword[] =
    "the print server does not allow it, or wants a password. Ask whoever looks after the "
    "printers, "
    "or print with lp, which can ask for the password.";

// Whether libcups only knows that the right bytes did not come ("Success", "Broken pipe").
bool knowsNoReason(const std::string& words) {
  if (cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE) return true;
  constexpr std::array kErrors{0, EPIPE, ECONNRESET, ECONNREFUSED, ENOTCONN, EINTR, EAGAIN};
  return words.empty() ||
         std::ranges::any_of(kErrors, [&](int error) { return words == std::strerror(error); });
}

std::string address() { return "the print server at " + std::string(cupsServer()); }

}  // namespace

PrintServer::PrintServer(std::unique_ptr<Relay> itsRelay, HttpPtr itsConnection)
    : relay(std::move(itsRelay)), connection(std::move(itsConnection)) {}
PrintServer::PrintServer(PrintServer&&) noexcept = default;

// An answer that was left in the middle has to be read to its end, which is near once the line is
// cut: else libcups forgets what it needed to unpack it.
PrintServer::~PrintServer() {
  if (!connection) return;
  relay->hangUp();
  httpFlush(connection.get());
}

PrintServer& PrintServer::operator=(PrintServer&& other) noexcept {
  relay.swap(other.relay);
  connection.swap(other.connection);
  return *this;
}

Cancellable<PrintServer> PrintServer::connect(const CancelFlag& cancel, Patience patience) {
  if (cancel) return Cancelled{};
  auto relay = Relay::to(cupsServer(), ippPort(), cancel, patience);
  HttpPtr connection;
  if (relay)
    connection.reset(httpConnect2(cupsServer(), ippPort(), relay->address().get(), AF_UNSPEC,
                                  cupsEncryption(), 1, static_cast<int>(patience.count()),
                                  nullptr));
  if (!connection)
    return Failure{"The print server at " + std::string(cupsServer()) +
                   " cannot be reached. Check that it runs."};
  // libcups would ask for it in the terminal, where nobody looks. Holds for the calling thread.
  cupsSetPasswordCB2(noPassword, nullptr);
  return PrintServer(std::move(relay), std::move(connection));
}

NoValue PrintServer::noAnswer(const std::string& words) const {
  if (relay->cut() == Relay::Cut::cancelled) return Cancelled{};
  return Failure{words + ": " + whatItDid()};
}

NoValue PrintServer::refused(const std::string& words, http_status_t status) const {
  if (gaveUp() || status < HTTP_STATUS_MULTIPLE_CHOICES) return noAnswer(words);
  if (status == HTTP_STATUS_UNAUTHORIZED || status == HTTP_STATUS_FORBIDDEN)
    return Failure{words + ": " + kWantsPassword};
  return Failure{words + ": the print server says " + quoted(httpStatus(status)) + "."};
}

std::string PrintServer::whatItDid() const {
  if (relay->cut() == Relay::Cut::late)
    return address() + " does not answer. Check that it runs, then try again.";
  if (relay->cut() == Relay::Cut::tooLong)
    return address() + " sent more than any answer needs. Check that it is a print server.";
  if (wantsPassword()) return kWantsPassword;
  const char* words = cupsLastErrorString();  // null before the thread's first request in IPP
  std::string reason = words ? words : "";
  if (knowsNoReason(reason))
    return address() + " gave no proper answer. Check that it runs, then try again.";
  while (reason.ends_with('.')) reason.pop_back();
  return reason + ".";
}

}  // namespace tavrin
