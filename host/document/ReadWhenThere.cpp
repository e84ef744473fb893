#include "host/document/ReadWhenThere.h"

#include <cerrno>
#include <cstring>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace tavrin {

namespace {

constexpr int kPollMilliseconds = 200;

}  // namespace

Cancellable<std::size_t> readWhenThere(int descriptor, std::span<char> buffer,
                                       const CancelFlag& cancel) {
  while (!cancel) {
    pollfd waiting{descriptor, POLLIN, 0};
    if (poll(&waiting, 1, kPollMilliseconds) == 0) continue;
    const ssize_t bytes = ::read(descriptor, buffer.data(), buffer.size());
    if (bytes >= 0) return static_cast<std::size_t>(bytes);
    if (errno != EAGAIN && errno != EINTR)
      return Failure{std::string("cannot be read: ") + std::strerror(errno)};
  }
  return Cancelled{};
}

}  // namespace tavrin
