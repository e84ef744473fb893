#include "host/document/Document.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "host/document/AnnouncedSize.h"
#include "host/document/DocumentFormat.h"
#include "host/document/DocumentName.h"
#include "host/document/ReadWhenThere.h"
#include "host/document/RereadableInput.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

constexpr std::size_t kLookAhead = 512;

// What a sentence about a document begins with.
std::string subject(const std::string& document, bool isInput) {
  return isInput ? "Standard input" : "The document " + quoted(document);
}

}  // namespace

Cancellable<Document> Document::open(const std::filesystem::path& path, const CancelFlag& cancel) {
  const bool isInput = path == kStandardInput;
  const auto about = [&](const std::string& problem) {
    return Failure{subject(path.string(), isInput) + " " + problem + "."};
  };
  FileDescriptor opened;
  // Without waiting: the wait for somebody who fills a FIFO must end when it is cancelled.
  if (!isInput) opened = FileDescriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!isInput && !opened) return about(std::string("cannot be read: ") + std::strerror(errno));
  Document document(std::move(opened), documentName(path));
  if (const char* kind = document.otherKind())
    return about("is a " + std::string(kind) + ", not a file");
  document.bytesInAll =
      isInput ? RereadableInput::standardInput().size() : announcedSize(document.file.get());
  const auto looked = document.lookAhead(cancel);
  if (!looked) return looked.why();
  if (document.start.empty()) return about("is empty");
  return document;
}

Document::Document(FileDescriptor theFile, std::string name)
    : file(std::move(theFile)), itsName(std::move(name)) {}

const char* Document::otherKind() {
  struct stat status {};
  if (fstat(file ? file.get() : STDIN_FILENO, &status) != 0 || S_ISDIR(status.st_mode))
    return "folder";
  if (!file || S_ISFIFO(status.st_mode) || S_ISREG(status.st_mode)) return nullptr;
  return "device";
}

Cancellable<Done> Document::lookAhead(const CancelFlag& cancel) {
  start.resize(kLookAhead);
  std::size_t length = 0;
  while (length < start.size()) {
    const auto more = readOn(std::span(start).subspan(length), cancel);
    if (!more) return more.why();
    if (*more == 0) break;
    length += *more;
  }
  start.resize(length);
  return Done{};
}

Cancellable<Done> Document::readAll(const Taker& take, const CancelFlag& cancel,
                                    const ProgressCallback& progress) {
  std::array<char, 65536> buffer;
  Progress read{0, bytesInAll};
  for (std::span<const char> piece = start; !piece.empty();) {
    if (cancel) return Cancelled{};
    read.done += piece.size();
    if (isLongerThanItWas(read.done)) return hasChanged(read.done);
    if (auto taken = take(piece); !taken) return taken;
    if (progress) progress(read);
    const auto more = readOn(buffer, cancel);
    if (!more) return more.why();
    piece = std::span(buffer).first(*more);
  }
  if (read.done < bytesInAll) return hasChanged(read.done);
  return Done{};
}

// Standard input cannot be opened anew, so it is for the person to do that.
Failure Document::hasChanged(std::uint64_t bytes) const {
  const std::string advice = file ? "Print it again" : "Run the command once more";
  return {subject(itsName, !file) + " changed while it was read: it had " +
          std::to_string(bytesInAll) + " bytes when it was opened, but " + std::to_string(bytes) +
          " were read. " + advice + " when it is complete."};
}

Cancellable<std::size_t> Document::readOn(std::span<char> buffer, const CancelFlag& cancel) {
  const auto bytes = file ? readWhenThere(file.get(), buffer, cancel)
                          : RereadableInput::standardInput().read(offset, buffer, cancel);
  if (bytes) offset += *bytes;
  if (!bytes && !bytes.cancelled())
    return Failure{subject(itsName, !file) + " " + bytes.reason() + "."};
  return bytes;
}

}  // namespace tavrin
