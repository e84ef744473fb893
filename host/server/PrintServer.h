#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>

#include "host/server/RequestGuard.h"
#include "host/support/Cancellable.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

inline constexpr Patience kUsualPatience = std::chrono::seconds(4);

// What a print server may answer to one request, unpacked, in bytes. The list of a thousand
// printers has about two million.
inline constexpr std::size_t kLongestAnswer = 8 << 20;

// The print server, asked over a connection of one's own. No request lasts longer than the patience
// or goes on once it is cancelled, and no answer is longer than an answer can be, whatever the
// server does. libcups' own calls for all this (cupsDoRequest and those that use it) wait and read
// without an end, and connect again as they like; here its HTTP and IPP are used one step at a
// time.
class PrintServer {
 public:
  // Connects to the server that the environment and the configuration of the print system name. The
  // flag must outlive the connection.
  static Cancellable<PrintServer> connect(const CancelFlag& cancel, Patience patience);
  ~PrintServer();
  PrintServer(PrintServer&&) noexcept = default;
  PrintServer& operator=(PrintServer&&) noexcept;

  // The patience of every request begins with it.

  // The server's answer to a request; null when there is none or it says that the request failed.
  IppPtr ask(IppPtr request);

  // A request that carries a document: its beginning, pieces of the document, and the end, which
  // gives the answer as ask does. Each is false, or null, when it failed. Between them the patience
  // does not end: the document is waited for, not the server.
  bool beginDocument(IppPtr request);
  bool sendDocument(std::span<const char> piece);
  IppPtr endDocument();

  // Asks for a file of the server. False when it does not send it.
  bool beginFile(const std::string& resource);
  // Its next bytes: their number; 0 at its end; -1 when it breaks off or is longer than an answer.
  ssize_t readFile(std::span<char> buffer);

  // What the server said of the last request, in HTTP and in IPP.
  http_status_t status() const { return last.http; }
  ipp_status_t answerStatus() const { return last.ipp; }
  // Whether the last request ended because it took too long or was cancelled.
  bool gaveUp() const { return guard->cut() != RequestGuard::Cut::none; }

  // Why the last request has no answer. A reason begins with the words, which say what
  // failed ("The printer \"x\" cannot be read"), and goes on with what the print server said or
  // did.
  NoValue noAnswer(const std::string& words) const;

 private:
  // What is known of the last request.
  struct Last {
    http_status_t http = HTTP_STATUS_ERROR;
    ipp_status_t ipp = IPP_STATUS_OK;
    std::string words;         // the server's, of a failure
    std::size_t received = 0;  // of the answer, unpacked
  };

  explicit PrintServer(HttpPtr connection);

  template <class Step>
  bool tryAll(const char* method, const std::string& resource, Step step);
  void hangUp();
  bool encrypt();
  bool mayTryAgain(const char* method, const std::string& resource);
  bool post(ipp_t& request, std::size_t length);
  bool isWelcome();
  bool hasAnswered();
  bool write(ipp_t& request);
  http_status_t readStatus();
  IppPtr readAnswer();
  std::string whatItDid() const;

  HttpPtr http;
  std::unique_ptr<RequestGuard> guard;  // after the connection, which it needs until it is gone
  bool isFresh = false;                 // connected, and not asked anything yet
  bool wantsEncryption = false;
  Last last;
};

}  // namespace tavrin
