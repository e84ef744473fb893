#include "host/ticket/DurableFile.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tavrin {

DurableFile::DurableFile(const std::filesystem::path& path)
    : file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)) {}

bool DurableFile::write(std::span<const char> bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.get(), bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return true;
}

bool DurableFile::finish() { return fsync(file.get()) == 0 && file.close(); }

bool syncFolder(const std::filesystem::path& folder) {
  const FileDescriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return opened && fsync(opened.get()) == 0;
}

}  // namespace tavrin
