#pragma once

#include <unistd.h>
#include <utility>

namespace tavrin {

// The owner of an open file.
class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int descriptor) : file(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept : file(std::exchange(other.file, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(file, other.file);
    return *this;
  }
  ~FileDescriptor() { close(); }

  // False when opening failed, and once it is closed.
  explicit operator bool() const { return file >= 0; }
  int get() const { return file; }
  // Closes the file now; false when that fails, which for a written file means that bytes are
  // lost.
  bool close() { return file < 0 || ::close(std::exchange(file, -1)) == 0; }

 private:
  int file = -1;
};

}  // namespace tavrin
