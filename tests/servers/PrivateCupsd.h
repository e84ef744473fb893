#pragma once

#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {

// A print server of a test's own, on a socket in a folder of its own, with a back end that writes
// down what it gets. Needs cupsd but no rights; throws where there is none, so that no test passes
// that did not print. While it lives, CUPS_SERVER names it and HOME is an empty folder; a thread
// that has used libcups before it knows only the first of these.
class PrivateCupsd {
 public:
  PrivateCupsd();
  ~PrivateCupsd();
  PrivateCupsd(const PrivateCupsd&) = delete;
  PrivateCupsd& operator=(const PrivateCupsd&) = delete;

  // Makes a queue that prints into the capturing back end.
  void addQueue(const std::string& queue, const std::filesystem::path& ppd) const;
  // The same with a PPD that hands PDF documents on as they are, and that has options for the paper
  // type, mirroring and print quality.
  void addPlainQueue(const std::string& queue) const;
  // Stops a queue; it goes on taking jobs.
  void stopQueue(const std::string& queue) const;
  // Runs one of the print system's commands against this server; throws when it fails.
  void run(const std::vector<std::string>& command) const;

  // What the back end got of one job.
  struct CapturedJob {
    std::string user;
    std::string title;
    std::string copies;
    std::vector<std::string> options;  // "Name=Value", "name", "noname", in their order
    std::string data;

    bool has(const std::string& option) const;
    // How many options have that name, in any letter case and form.
    int named(const std::string& name) const;
  };
  // Waits for the job to reach the back end; throws when it does not come.
  CapturedJob waitForJob(int jobId) const;

  std::filesystem::path folder() const { return scratch.path(); }

 private:
  void writeConfiguration() const;
  void start();
  void stop();

  test::TemporaryFolder scratch;
  pid_t server = -1;
};

}  // namespace tavrin
