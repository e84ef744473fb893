#include "tests/servers/LocalSocket.h"

#include <string>
#include <sys/socket.h>
#include <sys/un.h>

namespace tavrin {

namespace {

// Calls the function with the address of the place.
template <class Function>
bool withAddress(const std::filesystem::path& place, Function call) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  place.string().copy(address.sun_path, sizeof(address.sun_path) - 1);
  return call(reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
}

}  // namespace

LocalSocket::LocalSocket() : end(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {}

bool LocalSocket::connectTo(const std::filesystem::path& place) const {
  return withAddress(place, [this](const sockaddr* address, socklen_t size) {
    return connect(end.get(), address, size);
  });
}

bool LocalSocket::listenAt(const std::filesystem::path& place) const {
  return withAddress(place, [this](const sockaddr* address,
                                   socklen_t size) { return bind(end.get(), address, size); }) &&
         listen(end.get(), SOMAXCONN) == 0;
}

void LocalSocket::shut() const { shutdown(end.get(), SHUT_RDWR); }

}  // namespace tavrin
