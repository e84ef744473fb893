#pragma once

#include <string>

#include "tests/fixtures/TemporaryFolder.h"
#include "tests/servers/LocalSocket.h"

namespace tavrin {

// A print server that lets everybody in and says nothing. While it lives, CUPS_SERVER names it.
class SilentServer {
 public:
  SilentServer();
  ~SilentServer();

  std::string path() const { return (folder.path() / "cups.sock").string(); }
  // Waits for somebody to come, calls the function when their first byte is there, and waits until
  // they hang up.
  template <class Function>
  void receive(Function onFirstByte) {
    const FileDescriptor caller = socket.nextCaller();
    if (!readByte(caller)) return;
    onFirstByte();
    while (readByte(caller)) continue;
  }
  // Goes away like a print server that is stopped.
  void stop();

 private:
  static bool readByte(const FileDescriptor& caller);

  test::TemporaryFolder folder;
  LocalSocket socket;
};

}  // namespace tavrin
