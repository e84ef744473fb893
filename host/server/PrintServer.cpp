#include "host/server/PrintServer.h"

#include <array>
#include <sys/socket.h>
#include <utility>

#include "host/server/IppRequest.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

// A first try, one with an account, one with encryption.
constexpr int kMostTries = 3;
// How long a server may take to say that it wants no document.
constexpr int kWelcomeMilliseconds = 1000;
// The length of a request that a document follows.
constexpr std::size_t kOpenLength = 0;

constexpr char kResource[] = "/";
constexpr char kWantsPassword[] =
    "the print server does not allow it, or wants a password. Ask whoever looks after the "
    "printers, or print with lp, which can ask for the password.";

const char* noPassword(const char*, http_t*, const char*, const char*, void*) { return nullptr; }

// Whether the answer came to the end that was announced, by its length or chunk by chunk. libcups
// takes the end of the connection for the end of the answer.
bool isWhole(http_t* http) { return httpGetRemaining(http) == 0 && httpError(http) == 0; }

bool wantsPassword(http_status_t http, ipp_status_t ipp) {
  return http == HTTP_STATUS_UNAUTHORIZED || http == HTTP_STATUS_FORBIDDEN ||
         ipp == IPP_STATUS_ERROR_NOT_AUTHORIZED || ipp == IPP_STATUS_ERROR_NOT_AUTHENTICATED;
}

std::string address() { return "the print server at " + std::string(cupsServer()); }

}  // namespace

PrintServer::PrintServer(HttpPtr connection) : http(std::move(connection)) {}

PrintServer::~PrintServer() {
  if (http) hangUp();
}

PrintServer& PrintServer::operator=(PrintServer&& other) noexcept {
  std::swap(http, other.http);
  std::swap(guard, other.guard);
  std::swap(isFresh, other.isFresh);
  std::swap(wantsEncryption, other.wantsEncryption);
  std::swap(last, other.last);
  return *this;
}

Cancellable<PrintServer> PrintServer::connect(const CancelFlag& cancel, Patience patience) {
  if (cancel) return Cancelled{};
  // libcups would ask for it in the terminal, where nobody looks. Holds for the calling thread.
  cupsSetPasswordCB2(noPassword, nullptr);
  // With no time to connect in, so that it does not yet.
  PrintServer server(HttpPtr(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                          cupsEncryption(), /*blocking=*/1, /*msec=*/0, nullptr)));
  if (server.http) {
    server.guard = std::make_unique<RequestGuard>(*server.http, cancel, patience);
    server.isFresh = server.guard->connect();
    if (server.isFresh) return server;
  }
  if (cancel) return Cancelled{};
  return Failure{"The print server at " + std::string(cupsServer()) +
                 " cannot be reached. Check that it runs."};
}

// --- Requests ---

IppPtr PrintServer::ask(IppPtr request) {
  const bool isAnswered = tryAll("POST", kResource, [&] {
    return post(*request, ippLength(request.get())) && write(*request) &&
           readStatus() == HTTP_STATUS_OK;
  });
  return isAnswered ? readAnswer() : nullptr;
}

bool PrintServer::beginDocument(IppPtr request) {
  const bool isBegun = tryAll("POST", kResource, [&] {
    return post(*request, kOpenLength) && isWelcome() && write(*request);
  });
  guard->pause();
  return isBegun;
}

bool PrintServer::sendDocument(std::span<const char> piece) {
  guard->restart();
  const auto size = static_cast<ssize_t>(piece.size());
  const bool sent = !hasAnswered() && httpWrite2(http.get(), piece.data(), piece.size()) == size;
  // Who hangs up in the middle has often said why.
  if (!sent && last.http == HTTP_STATUS_CONTINUE) readStatus();
  guard->pause();
  return sent;
}

// Whether the answer is there before the document is: it can be no good one.
bool PrintServer::hasAnswered() {
  if (!httpWait(http.get(), 0)) return false;
  last.http = httpUpdate(http.get());
  return last.http != HTTP_STATUS_CONTINUE;
}

IppPtr PrintServer::endDocument() {
  guard->restart();
  const bool isAnswered = httpWrite2(http.get(), "", 0) >= 0 && readStatus() == HTTP_STATUS_OK;
  return isAnswered ? readAnswer() : nullptr;
}

bool PrintServer::beginFile(const std::string& resource) {
  return tryAll("GET", resource, [&] {
    return httpGet(http.get(), resource.c_str()) == 0 && readStatus() == HTTP_STATUS_OK;
  });
}

ssize_t PrintServer::readFile(std::span<char> buffer) {
  const ssize_t bytes = httpRead2(http.get(), buffer.data(), buffer.size());
  if (bytes == 0 && !isWhole(http.get())) return -1;
  if (bytes > 0) {
    last.received += static_cast<std::size_t>(bytes);
    guard->goOn();
  }
  return last.received > kLongestAnswer ? -1 : bytes;
}

// --- The steps of a request ---

// Makes a request, each try over a connection of its own: what is left of the answer before may
// have no end.
template <class Step>
bool PrintServer::tryAll(const char* method, const std::string& resource, Step step) {
  guard->restart();
  last = {};
  for (int tries = 0; tries < kMostTries; ++tries) {
    if (!std::exchange(isFresh, false)) {
      hangUp();
      if (!guard->connect()) return false;
    }
    if (!encrypt()) return false;
    httpClearFields(http.get());
    if (const char* account = httpGetAuthString(http.get()))
      httpSetField(http.get(), HTTP_FIELD_AUTHORIZATION, account);
    if (step()) return true;
    if (!mayTryAgain(method, resource)) return false;
  }
  return false;
}

// libcups forgets what it needed to unpack an answer unless the answer is read to its end, which is
// near once nothing comes any more.
void PrintServer::hangUp() {
  if (httpGetFd(http.get()) < 0) return;
  shutdown(httpGetFd(http.get()), SHUT_RDWR);
  httpFlush(http.get());
}

bool PrintServer::encrypt() {
  return !wantsEncryption || httpEncryption(http.get(), HTTP_ENCRYPTION_REQUIRED) == 0;
}

// Whether another try may be allowed what this one was not: encrypted, or as a user with an
// account.
bool PrintServer::mayTryAgain(const char* method, const std::string& resource) {
  if (last.http == HTTP_STATUS_UPGRADE_REQUIRED && cupsEncryption() != HTTP_ENCRYPTION_ALWAYS)
    return !std::exchange(wantsEncryption, true);
  return last.http == HTTP_STATUS_UNAUTHORIZED &&
         cupsDoAuthentication(http.get(), method, resource.c_str()) == 0;
}

// Begins a request in IPP of that length.
bool PrintServer::post(ipp_t& request, std::size_t length) {
  ippSetState(&request, IPP_STATE_IDLE);  // it may have been sent before
  httpSetField(http.get(), HTTP_FIELD_CONTENT_TYPE, "application/ipp");
  httpSetLength(http.get(), length);
  if (length == kOpenLength) httpSetExpect(http.get(), HTTP_STATUS_CONTINUE);
  return httpPost(http.get(), kResource) == 0;
}

// Whether the server wants the document. One that does not say so in time is taken to want it.
bool PrintServer::isWelcome() {
  last.http = HTTP_STATUS_CONTINUE;
  if (httpWait(http.get(), kWelcomeMilliseconds)) last.http = httpUpdate(http.get());
  return last.http == HTTP_STATUS_CONTINUE;
}

bool PrintServer::write(ipp_t& request) {
  ipp_state_t state = IPP_STATE_IDLE;
  while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR)
    state = ippWrite(http.get(), &request);
  return state == IPP_STATE_DATA && httpFlushWrite(http.get()) >= 0;
}

http_status_t PrintServer::readStatus() {
  do last.http = httpUpdate(http.get());
  while (last.http == HTTP_STATUS_CONTINUE);
  return last.http;
}

IppPtr PrintServer::readAnswer() {
  std::string bytes;
  std::array<char, 1 << 14> buffer;
  for (ssize_t more = 0; (more = readFile(buffer)) > 0;)
    bytes.append(buffer.data(), static_cast<std::size_t>(more));
  // A message has an end of its own, whatever length was announced.
  IppPtr answer = last.received <= kLongestAnswer ? readMessage(bytes) : nullptr;
  if (!answer) return nullptr;
  last.ipp = ippGetStatusCode(answer.get());
  if (last.ipp <= IPP_STATUS_OK_EVENTS_COMPLETE) return answer;
  last.words = textIn(*answer, "status-message");
  if (last.words.empty()) last.words = ippErrorString(last.ipp);
  return nullptr;
}

// --- What to say of a failure ---

NoValue PrintServer::noAnswer(const std::string& words) const {
  if (guard->cut() == RequestGuard::Cut::cancelled) return Cancelled{};
  return Failure{words + ": " + whatItDid()};
}

std::string PrintServer::whatItDid() const {
  if (guard->cut() == RequestGuard::Cut::late)
    return address() + " does not answer. Check that it runs, then try again.";
  if (last.received > kLongestAnswer)
    return address() + " sent more than any answer needs. Check that it is a print server.";
  if (wantsPassword(last.http, last.ipp)) return kWantsPassword;
  if (last.http >= HTTP_STATUS_MULTIPLE_CHOICES)
    return "the print server says " + quoted(httpStatus(last.http)) + ".";
  if (last.words.empty())
    return address() + " gave no proper answer. Check that it runs, then try again.";
  return last.words + (last.words.ends_with('.') ? "" : ".");
}

}  // namespace tavrin
