#pragma once

#include <string>

#include "host/support/FileDescriptor.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {

// A print server that lets everybody in and says nothing. While it lives, CUPS_SERVER names it.
class SilentServer {
 public:
  SilentServer();
  ~SilentServer();

  std::string path() const { return (folder.path() / "cups.sock").string(); }
  // Waits for somebody to come, then for the first byte and until they hang up; calls the function
  // in between.
  template <class Function>
  void receive(Function onFirstByte) {
    const FileDescriptor caller = nextCaller();
    if (!readByte(caller)) return;
    onFirstByte();
    while (readByte(caller)) continue;
  }
  // Goes away, as a print server that was stopped.
  void stop();

 private:
  FileDescriptor nextCaller() const;
  static bool readByte(const FileDescriptor& caller);

  test::TemporaryFolder folder;
  FileDescriptor server;
};

}  // namespace tavrin
