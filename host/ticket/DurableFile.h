#pragma once

#include <filesystem>
#include <span>

#include "platform/files/FileDescriptor.h"

// Writing so that nothing is lost: what is not on the disk when a folder gets its name could be
// missing after a power cut. Every failure leaves its reason in errno.

namespace tavrin {

// A new file.
class DurableFile {
 public:
  // Makes the file; fails where there is one of that name.
  explicit DurableFile(const std::filesystem::path& path);

  // False when it could not be made.
  explicit operator bool() const { return static_cast<bool>(file); }
  // Writes all the bytes; false on failure.
  bool write(std::span<const char> bytes);
  // Waits until everything is on the disk, and closes the file; false on failure.
  bool finish();

 private:
  FileDescriptor file;
};

// Waits until a folder's list of files is on the disk; false on failure.
bool syncFolder(const std::filesystem::path& folder);

}  // namespace tavrin
