#include "host/document/ReadWhenThere.h"

#include <cerrno>
#include <cstring>
#include <poll.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrin {

namespace {

constexpr int kPollMilliseconds = 200;

// As ::read does, but never waits for long: EAGAIN where there are no bytes by then.
ssize_t readSoon(int descriptor, std::span<char> buffer) {
  pollfd waiting{descriptor, POLLIN, 0};
  const int ready = poll(&waiting, 1, kPollMilliseconds);
  if (ready > 0) return ::read(descriptor, buffer.data(), buffer.size());
  if (ready == 0) errno = EAGAIN;
  return -1;
}

bool isRegular(int descriptor) {
  struct stat status {};
  return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

Cancellable<std::size_t> read(int descriptor, std::span<char> buffer, const CancelFlag& cancel,
                              bool waits) {
  while (!cancel) {
    const ssize_t bytes = readSoon(descriptor, buffer);
    if (bytes >= 0) return static_cast<std::size_t>(bytes);
    if (errno == EAGAIN && !waits) return Failure{"cannot be read: it holds nothing yet"};
    if (errno != EAGAIN && errno != EINTR)
      return Failure{std::string("cannot be read: ") + std::strerror(errno)};
  }
  return Cancelled{};
}

}  // namespace

Cancellable<std::size_t> readAtOnce(int descriptor, std::span<char> buffer) {
  return read(descriptor, buffer, neverCancelled(), false);
}

Cancellable<std::size_t> readWhenThere(int descriptor, std::span<char> buffer,
                                       const CancelFlag& cancel) {
  return read(descriptor, buffer, cancel, !isRegular(descriptor));
}

}  // namespace tavrin
