#include "host/job/RereadableInput.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace tavrin {

namespace {

constexpr int kPollMilliseconds = 200;

Failure because(const char* what) { return {std::string(what) + ": " + std::strerror(errno)}; }

}  // namespace

Result<std::size_t> readWhenThere(int descriptor, std::span<char> buffer,
                                  const CancelFlag& cancel) {
  while (!cancel) {
    pollfd waiting{descriptor, POLLIN, 0};
    if (poll(&waiting, 1, kPollMilliseconds) == 0) continue;
    const ssize_t bytes = ::read(descriptor, buffer.data(), buffer.size());
    if (bytes >= 0) return static_cast<std::size_t>(bytes);
    if (errno != EAGAIN && errno != EINTR) return because("cannot be read");
  }
  return std::size_t{0};
}

RereadableInput& RereadableInput::standardInput() {
  static RereadableInput input(STDIN_FILENO);
  return input;
}

Result<std::size_t> RereadableInput::read(std::uint64_t offset, std::span<char> buffer,
                                          const CancelFlag& cancel) {
  const std::lock_guard lock(mutex);
  if (offset >= takenBytes) return readOn(buffer, cancel);
  if (offset >= keptBytes)
    return Failure{
        "cannot be sent again, as there was no room for a copy of it: run the command once more"};
  const auto there = std::min<std::uint64_t>(buffer.size(), keptBytes - offset);
  const ssize_t bytes = pread(fileno(kept.get()), buffer.data(), there, static_cast<off_t>(offset));
  if (bytes <= 0) return because("cannot be read again");
  return static_cast<std::size_t>(bytes);
}

Result<std::size_t> RereadableInput::readOn(std::span<char> buffer, const CancelFlag& cancel) {
  const auto bytes = readWhenThere(input, buffer, cancel);
  if (!bytes) return bytes;
  keep(buffer.first(*bytes));
  takenBytes += *bytes;
  return bytes;
}

void RereadableInput::keep(std::span<const char> bytes) {
  if (keptBytes < takenBytes) return;  // behind a gap nothing can be read again
  if (!kept) kept.reset(std::tmpfile());
  while (kept && !bytes.empty()) {
    const ssize_t written =
        pwrite(fileno(kept.get()), bytes.data(), bytes.size(), static_cast<off_t>(keptBytes));
    if (written <= 0) return;
    keptBytes += static_cast<std::uint64_t>(written);
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
}

}  // namespace tavrin
