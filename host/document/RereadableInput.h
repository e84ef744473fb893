#pragma once

#include <cstdint>
#include <mutex>
#include <span>

#include "host/document/AnnouncedSize.h"
#include "host/support/Cancellable.h"
#include "platform/files/FileDescriptor.h"

namespace tavrin {

// Input that can be read again from its start: what has come is kept in a nameless temporary file
// (namelessFile), so that a job that failed can be sent once more. Where there is no room for that,
// it can still be read once. The same goes for input that turns out to be shorter or longer than it
// was in the beginning: somebody is writing it, and what was kept need not fit what follows. Any
// thread may read.
class RereadableInput {
 public:
  // Borrows the open file.
  explicit RereadableInput(int descriptor)
      : input(descriptor), bytesInAll(announcedSize(descriptor)) {}
  // The program's standard input.
  static RereadableInput& standardInput();

  // The size that it had in the beginning, as announcedSize says.
  std::uint64_t size() const { return bytesInAll; }
  // Reads the bytes that follow the first `offset` bytes, as readWhenThere does. The reason also
  // when bytes are wanted again that cannot be had again.
  Cancellable<std::size_t> read(std::uint64_t offset, std::span<char> buffer,
                                const CancelFlag& cancel);

 private:
  Cancellable<std::size_t> readOn(std::span<char> buffer, const CancelFlag& cancel);
  Cancellable<std::size_t> readAgain(std::uint64_t offset, std::span<char> buffer) const;
  void keep(std::span<const char> bytes);
  // Whether what was taken contradicts the size that it had in the beginning.
  bool contradictsItsSize(bool isAll) const;

  std::mutex mutex;
  int input;
  std::uint64_t bytesInAll;
  FileDescriptor kept;
  std::uint64_t takenBytes = 0;  // from the input, so far
  std::uint64_t keptBytes = 0;   // of them: the first ones, all of them unless keeping failed
  bool hasChanged = false;       // its size, while it was read
};

}  // namespace tavrin
