#include "tests/servers/FaultyServer.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <sys/socket.h>

#include "tests/fakes/FakePPD.h"

namespace tavrin {

namespace {

constexpr int kJob = 7;
constexpr char kOk[] = "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\n";

// False when the caller has hung up.
bool say(http_t* caller, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t sent = send(httpGetFd(caller), bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

void sayForEver(http_t* caller, std::string_view bytes) {
  while (say(caller, bytes)) continue;
}

// A byte every few milliseconds: far more often than anybody's patience ends.
void drip(http_t* caller) {
  say(caller, kOk);
  while (say(caller, "X")) std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

void waitUntilHungUp(http_t* caller) {
  std::array<char, 4096> ignored;
  while (recv(httpGetFd(caller), ignored.data(), ignored.size(), 0) > 0) continue;
}

std::string chunk(std::string_view bytes) {
  std::array<char, 20> length;
  std::snprintf(length.data(), length.size(), "%zx\r\n", bytes.size());
  return length.data() + std::string(bytes) + "\r\n";
}

// The beginning of an IPP answer: version 2.0, successful, request 1, operation attributes.
constexpr std::string_view kIppStart("\x02\x00\x00\x00\x00\x00\x00\x01\x01", 9);

// An IPP attribute without a name: one more value of the one before it.
std::string ippValue(std::size_t length) {
  std::string value("\x41\x00\x00", 3);  // text, no name
  value += static_cast<char>(length >> 8);
  value += static_cast<char>(length & 0xFF);
  return value + std::string(length, 'x');
}

std::string ippAttribute() { return std::string("\x41\x00\x01x\x00\x01x", 7); }

std::string goodPPD() { return ppdText({paperTypeOption(), mirrorOption()}, {}); }

// What an answer would begin with.
std::string beginning(bool wantsPPD) {
  return wantsPPD ? goodPPD().substr(0, 400) : std::string(kIppStart) + ippAttribute();
}

// A whole answer, and yet.
std::string deepAnswer() {
  const std::string begin("\x34\x00\x01x\x00\x00", 6);   // a collection named "x"
  const std::string member("\x4A\x00\x00\x00\x01x", 6);  // with a member named "x"
  const std::string inner("\x34\x00\x00\x00\x00", 5);    // that is a collection
  std::string message = std::string(kIppStart) + begin;
  for (int level = 0; level < 20'000; ++level) message += member + inner;
  for (int level = 0; level <= 20'000; ++level) message += std::string("\x37\x00\x00\x00\x00", 5);
  return message + '\x03';
}

std::string more(bool wantsPPD) {
  return wantsPPD ? "*% and so on, and so on\n" : ippValue(30'000);
}

// Text that goes on for many megabytes, packed.
std::string packed(const std::string& start, const std::string& more) {
  const test::TemporaryFolder place;
  const std::string path = (place.path() / "packed.gz").string();
  {
    const CupsFilePtr file(cupsFileOpen(path.c_str(), "w9"));
    cupsFileWrite(file.get(), start.data(), start.size());
    std::string block;
    while (block.size() < (1 << 20)) block += more;
    for (int i = 0; i < 16; ++i) cupsFileWrite(file.get(), block.data(), block.size());
  }
  return test::textOf(path);
}

const std::string& addressOfPrinter() {
  static const std::string uri = "ipp://localhost/printers/photo";
  return uri;
}

bool sendPPD(http_t* caller) {
  const std::string ppd = goodPPD();
  return say(caller,
             "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(ppd.size()) + "\r\n\r\n" + ppd);
}

void describePrinter(ipp_t& answer) {
  ippAddString(&answer, IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr, "photo");
  ippAddString(&answer, IPP_TAG_PRINTER, IPP_TAG_URI, "printer-uri-supported", nullptr,
               addressOfPrinter().c_str());
  ippAddInteger(&answer, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", IPP_PSTATE_IDLE);
  ippAddBoolean(&answer, IPP_TAG_PRINTER, "printer-is-accepting-jobs", 1);
  ippAddInteger(&answer, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-type", 0);
}

void fill(ipp_t& answer, ipp_op_t operation) {
  if (operation == IPP_OP_CUPS_GET_PRINTERS || operation == IPP_OP_GET_PRINTER_ATTRIBUTES)
    describePrinter(answer);
  if (operation == IPP_OP_CREATE_JOB || operation == IPP_OP_GET_JOB_ATTRIBUTES)
    ippAddInteger(&answer, IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", kJob);
}

}  // namespace

FaultyServer::FaultyServer(Fault itsFault, ipp_op_t itsOperation)
    : fault(itsFault), operation(itsOperation) {
  if (!socket.listenAt(path())) throw std::runtime_error("cannot listen at " + path());
  setenv("CUPS_SERVER", path().c_str(), 1);
  cupsSetServer(nullptr);  // libcups looks at the environment again
  acceptor = std::thread([this] { acceptCallers(); });
}

FaultyServer::~FaultyServer() {
  stop();
  unsetenv("CUPS_SERVER");
}

void FaultyServer::whenAsked(std::function<void()> heard) {
  const std::lock_guard lock(mutex);
  asked = std::move(heard);
}

std::set<int> FaultyServer::unfinishedJobs() {
  const std::lock_guard lock(mutex);
  return jobs;
}

void FaultyServer::stop() {
  if (stopping.exchange(true)) return;
  socket.shut();
  acceptor.join();  // from here on nobody else comes
  for (const HttpPtr& caller : callers) shutdown(httpGetFd(caller.get()), SHUT_RDWR);
  for (std::thread& thread : threads) thread.join();
  std::filesystem::remove(path());
}

void FaultyServer::acceptCallers() {
  while (HttpPtr caller{httpAcceptConnection(socket.descriptor(), /*blocking=*/1)}) {
    const std::lock_guard lock(mutex);
    callers.push_back(std::move(caller));
    threads.emplace_back([this, http = callers.back().get()] { serve(http); });
  }
}

void FaultyServer::serve(http_t* caller) {
  while (answerOne(caller)) continue;
  shutdown(httpGetFd(caller), SHUT_RDWR);
}

// False when the caller hung up, or was treated badly.
bool FaultyServer::answerOne(http_t* caller) {
  std::array<char, HTTP_MAX_URI> resource;
  http_state_t method = HTTP_STATE_WAITING;
  while (method == HTTP_STATE_WAITING)
    method = httpReadRequest(caller, resource.data(), resource.size());
  if (method == HTTP_STATE_ERROR || method == HTTP_STATE_UNKNOWN_METHOD) return false;
  http_status_t status = HTTP_STATUS_CONTINUE;
  while (status == HTTP_STATUS_CONTINUE) status = httpUpdate(caller);
  return status == HTTP_STATUS_OK && answer(caller, method);
}

bool FaultyServer::answer(http_t* caller, http_state_t method) {
  const bool wantsPPD = method == HTTP_STATE_GET;
  if (httpGetExpect(caller) == HTTP_STATUS_CONTINUE && operation != IPP_OP_CUPS_INVALID)
    httpWriteResponse(caller, HTTP_STATUS_CONTINUE);
  const IppPtr request(ippNew());
  const bool isRead = wantsPPD || operation == IPP_OP_CUPS_INVALID ||
                      ippRead(caller, request.get()) == IPP_STATE_DATA;
  const ipp_op_t wanted = wantsPPD ? IPP_OP_CUPS_GET_PPD : ippGetOperation(request.get());
  const bool isSpoilt = operation == IPP_OP_CUPS_INVALID || wanted == operation;
  if (isRead && (!isSpoilt || fault == Fault::slow))
    return wantsPPD ? sendPPD(caller) : answerWell(caller, *request);
  {
    const std::lock_guard lock(mutex);
    if (asked) asked();
  }
  misbehave(caller, wantsPPD);
  return false;
}

bool FaultyServer::answerWell(http_t* caller, ipp_t& request) {
  std::array<char, 4096> document;
  while (httpRead2(caller, document.data(), document.size()) > 0)
    if (fault == Fault::slow) std::this_thread::sleep_for(std::chrono::milliseconds(20));
  if (httpGetRemaining(caller) != 0 || httpError(caller) != 0)
    return false;  // the caller hung up in the middle
  keepBooks(request);
  const IppPtr answer(ippNewResponse(&request));
  fill(*answer, ippGetOperation(&request));
  httpClearFields(caller);
  httpSetField(caller, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
  httpSetLength(caller, ippLength(answer.get()));
  return httpWriteResponse(caller, HTTP_STATUS_OK) == 0 &&
         ippWrite(caller, answer.get()) == IPP_STATE_DATA && httpFlushWrite(caller) >= 0;
}

void FaultyServer::keepBooks(ipp_t& request) {
  const std::lock_guard lock(mutex);
  if (ippGetOperation(&request) == IPP_OP_CREATE_JOB) jobs.insert(kJob);
  if (ippGetOperation(&request) == IPP_OP_SEND_DOCUMENT ||
      ippGetOperation(&request) == IPP_OP_CANCEL_JOB)
    jobs.erase(kJob);
}

void FaultyServer::misbehave(http_t* caller, bool wantsPPD) {
  const std::string ok = kOk;
  const std::string chunked = ok + "Transfer-Encoding: chunked\r\n\r\n";
  switch (fault) {
    case Fault::slow:
      return;  // answers well
    case Fault::silent:
      return waitUntilHungUp(caller);
    case Fault::dripping:
      return drip(caller);
    case Fault::endlessContinue:
      return sayForEver(caller, "HTTP/1.1 100 Continue\r\n\r\n");
    case Fault::endlessHeaders:
      say(caller, ok);
      return sayForEver(caller, "Server: one more of many\r\n");
    case Fault::emptyChunks:
      say(caller, chunked + chunk(beginning(wantsPPD)));
      return sayForEver(caller, "0\r\n\r\n");
    case Fault::endlessAnswer:
      say(caller, chunked + chunk(beginning(wantsPPD)));
      return sayForEver(caller, chunk(more(wantsPPD)));
    case Fault::deep:
      say(caller, chunked + chunk(deepAnswer()) + chunk(""));
      return;
    case Fault::closing:
      return;
    case Fault::half:
      say(caller, ok + "Content-Length: 1000\r\n\r\n" + beginning(wantsPPD));
      return;
    case Fault::halfChunk:
      say(caller, chunked + "1000\r\n" + beginning(wantsPPD));
      return;
    case Fault::noLastChunk:
      say(caller, chunked + chunk(beginning(wantsPPD)));
      return;
    case Fault::wrong:
      return sayForEver(caller, "220 mail.example.com ESMTP ready\r\n");
    case Fault::huge:
      say(caller, ok + "Content-Length: 1000000000000\r\n\r\n" + beginning(wantsPPD));
      return sayForEver(caller, more(wantsPPD));
    case Fault::redirecting:
      say(caller,
          "HTTP/1.1 301 Moved\r\nLocation: http://localhost:9/\r\nContent-Length: 0\r\n\r\n");
      return;
    case Fault::wantsPassword:
      say(caller,
          "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"CUPS\"\r\n"
          "Content-Length: 0\r\n\r\n");
      return;
    case Fault::wantsEncryption:
      say(caller,
          "HTTP/1.1 426 Upgrade Required\r\nConnection: Upgrade\r\nUpgrade: TLS/1.2\r\n"
          "Content-Length: 0\r\n\r\n");
      return;
    case Fault::brokenGzip:
      say(caller, ok + "Content-Encoding: gzip\r\nContent-Length: 400\r\n\r\n" + goodPPD());
      return;
    case Fault::gzipBomb:
      say(caller, ok + "Content-Encoding: gzip\r\nTransfer-Encoding: chunked\r\n\r\n" +
                      chunk(packed(beginning(wantsPPD), wantsPPD ? more(true) : ippAttribute())));
      return;
  }
}

}  // namespace tavrin
