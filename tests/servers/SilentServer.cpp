#include "tests/servers/SilentServer.h"

#include <cstdlib>
#include <stdexcept>
#include <unistd.h>

#include <cups/cups.h>

namespace tavrin {

SilentServer::SilentServer() {
  if (!socket.listenAt(path())) throw std::runtime_error("cannot listen at " + path());
  setenv("CUPS_SERVER", path().c_str(), 1);
  cupsSetServer(nullptr);  // libcups looks at the environment again
}

SilentServer::~SilentServer() { unsetenv("CUPS_SERVER"); }

void SilentServer::stop() {
  socket.close();
  std::filesystem::remove(path());
}

bool SilentServer::readByte(const FileDescriptor& caller) {
  char byte;
  return read(caller.get(), &byte, 1) == 1;
}

}  // namespace tavrin
