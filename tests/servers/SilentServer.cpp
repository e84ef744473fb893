#include "tests/servers/SilentServer.h"

#include <cstdlib>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>

#include <cups/cups.h>

namespace tavrin {

SilentServer::SilentServer() : server(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path().copy(address.sun_path, sizeof(address.sun_path) - 1);
  if (bind(server.get(), reinterpret_cast<sockaddr*>(&address), sizeof(address)) != 0 ||
      listen(server.get(), SOMAXCONN) != 0)
    throw std::runtime_error("cannot listen at " + path());
  setenv("CUPS_SERVER", path().c_str(), 1);
  cupsSetServer(nullptr);  // libcups looks at the environment again
}

SilentServer::~SilentServer() { unsetenv("CUPS_SERVER"); }

void SilentServer::stop() {
  server.close();
  std::filesystem::remove(path());
}

FileDescriptor SilentServer::nextCaller() const {
  return FileDescriptor(accept(server.get(), nullptr, nullptr));
}

bool SilentServer::readByte(const FileDescriptor& caller) {
  char byte;
  return read(caller.get(), &byte, 1) == 1;
}

}  // namespace tavrin
