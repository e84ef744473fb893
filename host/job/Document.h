#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "host/support/Cancellation.h"
#include "host/support/FileDescriptor.h"
#include "platform/text/Result.h"

namespace tavrin {

// How far the work on a document is: bytes done, and bytes in all (0 while nobody knows).
struct Progress {
  std::uint64_t done = 0;
  std::uint64_t total = 0;
};

// A document, read from its start to its end. It exists so that a file and standard input look
// alike; either can be opened again.
class Document {
 public:
  // Opens a file, or standard input for "-". The reason names a file that is missing, cannot be
  // read, is no file, or is empty. Waits for the first bytes of standard input.
  static Result<Document> open(const std::filesystem::path& file,
                               const CancelFlag& cancel = neverCancelled());
  // The file's name without its folder; "(stdin)" for standard input, as lp has it.
  const std::string& name() const { return documentName; }
  // The MIME type that the first bytes show; "application/octet-stream" where they show none, so
  // that the print system looks for itself.
  const std::string& format() const { return mimeType; }
  // Its size in bytes; 0 for standard input.
  std::uint64_t size() const { return bytesInAll; }

  // Fills the front of the buffer with the next bytes. Their number; 0 at the end and once
  // cancelled. The reason when reading fails.
  Result<std::size_t> read(std::span<char> buffer, const CancelFlag& cancel);

 private:
  Document(FileDescriptor file, std::string name);
  // Reads the first bytes and looks what they are; false when there are none.
  Result<bool> lookAhead(const CancelFlag& cancel);
  Result<std::size_t> readOn(std::span<char> buffer, const CancelFlag& cancel);

  FileDescriptor file;       // none for standard input
  std::uint64_t offset = 0;  // what has been read
  std::string documentName;
  std::string mimeType;
  std::uint64_t bytesInAll = 0;
  std::string ahead;  // read already, not yet handed out
};

// The MIME type of a document that starts with these bytes; "application/octet-stream" for what
// is not known.
std::string formatOf(std::string_view start);

}  // namespace tavrin
