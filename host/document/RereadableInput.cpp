#include "host/document/RereadableInput.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>
#include <unistd.h>

#include "host/document/NamelessFile.h"
#include "host/document/ReadWhenThere.h"

namespace tavrin {

RereadableInput& RereadableInput::standardInput() {
  static RereadableInput input(STDIN_FILENO);
  return input;
}

Cancellable<std::size_t> RereadableInput::read(std::uint64_t offset, std::span<char> buffer,
                                               const CancelFlag& cancel) {
  const std::lock_guard lock(mutex);
  return offset < takenBytes ? readAgain(offset, buffer) : readOn(buffer, cancel);
}

Cancellable<std::size_t> RereadableInput::readAgain(std::uint64_t offset,
                                                    std::span<char> buffer) const {
  if (hasChanged)
    return Failure{
        "cannot be sent again, as it changed while it was read: run the command once more when it "
        "is complete"};
  if (offset >= keptBytes)
    return Failure{
        "cannot be sent again, as there was no room for a copy of it: run the command once more"};
  const auto there = std::min<std::uint64_t>(buffer.size(), keptBytes - offset);
  const ssize_t bytes = pread(kept.get(), buffer.data(), there, static_cast<off_t>(offset));
  if (bytes <= 0) return Failure{std::string("cannot be read again: ") + std::strerror(errno)};
  return static_cast<std::size_t>(bytes);
}

Cancellable<std::size_t> RereadableInput::readOn(std::span<char> buffer, const CancelFlag& cancel) {
  const auto bytes = readWhenThere(input, buffer, cancel);
  if (!bytes) return bytes;
  keep(buffer.first(*bytes));
  takenBytes += *bytes;
  hasChanged |= contradictsItsSize(*bytes == 0);
  return bytes;
}

bool RereadableInput::contradictsItsSize(bool isAll) const {
  if (bytesInAll == 0) return false;
  return takenBytes > bytesInAll || (isAll && takenBytes < bytesInAll);
}

void RereadableInput::keep(std::span<const char> bytes) {
  if (keptBytes < takenBytes) return;  // after a gap nothing can be read again
  if (!kept) kept = namelessFile();
  while (kept && !bytes.empty()) {
    const ssize_t written =
        pwrite(kept.get(), bytes.data(), bytes.size(), static_cast<off_t>(keptBytes));
    if (written <= 0) return;
    keptBytes += static_cast<std::uint64_t>(written);
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
}

}  // namespace tavrin
