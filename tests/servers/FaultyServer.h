#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "ppd/CupsHandles.h"
#include "tests/fixtures/TemporaryFolder.h"
#include "tests/servers/LocalSocket.h"

namespace tavrin {

// How a print server can misbehave.
enum class Fault {
  slow,             // takes what it is sent in small bites, and then answers well
  silent,           // says nothing
  dripping,         // a byte of its answer now and then, without an end
  endlessContinue,  // "100 Continue" again and again
  endlessHeaders,   // headers without an end
  emptyChunks,      // an answer of chunks that hold nothing
  endlessAnswer,    // a good beginning, and then attributes or lines without an end
  deep,             // an answer of collections in collections
  closing,          // hangs up instead of answering
  half,             // hangs up in the middle of the length that it announced
  halfChunk,        // hangs up in the middle of a chunk
  noLastChunk,      // hangs up between two chunks
  wrong,            // answers with something that is no answer
  huge,             // announces and sends more than anybody can want
  redirecting,      // sends the caller to another place
  wantsPassword,    // 401
  wantsEncryption,  // 426
  brokenGzip,       // an answer that says that it is packed, and is not
  gzipBomb,         // a small answer that unpacks to a huge one
};

// A print server with one printer, "photo", that misbehaves when it is asked for one thing, and
// else answers well. While it lives, CUPS_SERVER names it.
class FaultyServer {
 public:
  // The operation is an ipp_op_t; IPP_OP_CUPS_GET_PPD stands for the queue's PPD as a file,
  // IPP_OP_CUPS_INVALID for everything.
  explicit FaultyServer(Fault fault, ipp_op_t operation = IPP_OP_CUPS_INVALID);
  ~FaultyServer();
  FaultyServer(const FaultyServer&) = delete;
  FaultyServer& operator=(const FaultyServer&) = delete;

  std::string path() const { return (folder.path() / "cups.sock").string(); }
  // Called, on another thread, when the request has come that is not answered as it should be.
  void whenAsked(std::function<void()> heard);
  // The jobs that were made, and neither got their document nor were cancelled.
  std::set<int> unfinishedJobs();
  // Goes away like a print server that is stopped.
  void stop();

 private:
  void acceptCallers();
  void serve(http_t* caller);
  bool answerOne(http_t* caller);
  bool answer(http_t* caller, http_state_t method);
  bool answerWell(http_t* caller, ipp_t& request);
  void keepBooks(ipp_t& request);
  void misbehave(http_t* caller, bool wantsPPD);

  const Fault fault;
  const ipp_op_t operation;
  test::TemporaryFolder folder;
  LocalSocket socket;
  std::atomic<bool> stopping = false;
  std::thread acceptor;
  std::mutex mutex;  // of all below
  std::function<void()> asked;
  std::set<int> jobs;
  std::vector<HttpPtr> callers;
  std::vector<std::thread> threads;
};

}  // namespace tavrin
