#include "platform/files/RegularFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/FileDescriptor.h"

namespace tavrin {
namespace {

// Fills the text from the file, which may have become shorter since its size was taken.
bool fill(const FileDescriptor& file, std::string& text) {
  std::size_t have = 0;
  while (have < text.size()) {
    const ssize_t got = read(file.get(), text.data() + have, text.size() - have);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return false;
    if (got == 0) break;
    have += static_cast<std::size_t>(got);
  }
  text.resize(have);
  return true;
}

}  // namespace

std::optional<std::string> readRegularFile(const std::filesystem::path& file, std::size_t limit) {
  // Without O_NONBLOCK, opening a FIFO would wait until somebody writes to it; without O_NOCTTY, a
  // terminal could become the program's.
  const FileDescriptor opened(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  struct stat status = {};
  if (!opened || fstat(opened.get(), &status) != 0) return std::nullopt;
  if (!S_ISREG(status.st_mode) || static_cast<std::size_t>(status.st_size) > limit) {
    return std::nullopt;
  }
  std::string text(static_cast<std::size_t>(status.st_size), '\0');
  if (!fill(opened, text)) return std::nullopt;
  return text;
}

}  // namespace tavrin
