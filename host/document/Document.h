#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <string>

#include "host/document/DocumentFormat.h"
#include "host/document/Progress.h"
#include "host/support/Cancellable.h"
#include "platform/files/FileDescriptor.h"

namespace tavrin {

// A document, read from its start to its end. It exists so that a file and standard input look
// alike; either can be opened again.
class Document {
 public:
  // Opens a file or standard input, and waits for its first bytes. The reason names a file that is
  // missing, is not a file, cannot be read (standard input: not again, see RereadableInput), or is
  // empty.
  static Cancellable<Document> open(const std::filesystem::path& path,
                                    const CancelFlag& cancel = neverCancelled());

  // As documentName says.
  const std::string& name() const { return itsName; }
  // The MIME type that the first bytes show. May take a look into the database of the desktop.
  std::string format() const { return formatOf(start); }
  // Its size in bytes when it was opened; 0 where nobody knows it, as of a pipe.
  std::uint64_t size() const { return bytesInAll; }

  // Hands all its bytes to somebody who takes them, a piece at a time, and tells the progress after
  // each. Ends early when reading fails, or when a piece is not taken. It is a failure, too, when
  // there are more or fewer bytes than its size: a document that somebody is still writing.
  using Taker = std::function<Cancellable<Done>(std::span<const char> piece)>;
  Cancellable<Done> readAll(const Taker& take, const CancelFlag& cancel,
                            const ProgressCallback& progress);

 private:
  Document(FileDescriptor file, std::string name);
  // What kind of thing it is instead of a document, in words; null where it is one.
  const char* otherKind();
  Cancellable<Done> lookAhead(const CancelFlag& cancel);
  Cancellable<std::size_t> readOn(std::span<char> buffer, const CancelFlag& cancel);
  bool isLongerThanItWas(std::uint64_t bytes) const { return bytesInAll > 0 && bytes > bytesInAll; }
  Failure hasChanged(std::uint64_t bytes) const;

  FileDescriptor file;       // none for standard input
  std::uint64_t offset = 0;  // what has been read
  std::string itsName;
  std::uint64_t bytesInAll = 0;
  std::string start;  // its first bytes, read when it was opened
};

}  // namespace tavrin
