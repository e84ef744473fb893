#include "host/job/Document.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "host/job/RereadableInput.h"

namespace tavrin {

namespace {

constexpr char kUnknownFormat[] = "application/octet-stream";
constexpr std::size_t kLookAhead = 512;

Failure about(const std::string& document, const std::string& problem) {
  return {"The document \"" + document + "\" " + problem + "."};
}

struct Signature {
  std::string_view start;
  const char* format;
};

constexpr std::array<Signature, 12> kSignatures{{
    {"%!", "application/postscript"},
    {"\xFF\xD8\xFF", "image/jpeg"},
    {"\x89PNG\r\n\x1A\n", "image/png"},
    {"GIF87a", "image/gif"},
    {"GIF89a", "image/gif"},
    {std::string_view("II*\0", 4), "image/tiff"},
    {std::string_view("MM\0*", 4), "image/tiff"},
    // Texts that the print system reads in a way of its own.
    {"#CUPS", kUnknownFormat},
    {"#PDF-", kUnknownFormat},
    {"<", kUnknownFormat},
    {"#define", kUnknownFormat},
    {"/* XPM", kUnknownFormat},
}};

bool isTextByte(unsigned char byte) {
  return byte >= 0x80 || (byte >= ' ' && byte != 0x7F) ||
         (byte >= '\b' && byte <= '\r');  // backspace, tab, line ends, form feed
}

bool isBitmap(std::string_view start) {
  return start.size() > 2 && start[0] == 'P' && start[1] >= '1' && start[1] <= '6' &&
         (start[2] == ' ' || start[2] == '\n' || start[2] == '\t' || start[2] == '\r');
}

}  // namespace

std::string formatOf(std::string_view start) {
  // The print system, too, takes a PDF that begins with empty lines.
  if (const auto first = start.find_first_not_of("\r\n"); first != start.npos)
    if (start.substr(first).starts_with("%PDF-")) return "application/pdf";
  for (const Signature& signature : kSignatures)
    if (start.starts_with(signature.start)) return signature.format;
  if (isBitmap(start)) return "image/x-portable-anymap";
  const bool text = !start.empty() && std::all_of(start.begin(), start.end(), [](char byte) {
    return isTextByte(static_cast<unsigned char>(byte));
  });
  return text ? "text/plain" : kUnknownFormat;
}

Result<Document> Document::open(const std::filesystem::path& path, const CancelFlag& cancel) {
  const bool isInput = path == "-";
  const std::string name = isInput ? "(stdin)" : path.filename().string();
  FileDescriptor opened;
  // Without waiting: the wait for somebody who fills a FIFO must end when it is cancelled.
  if (!isInput) opened = FileDescriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!isInput && !opened)
    return about(path.string(), std::string("cannot be read: ") + std::strerror(errno));
  Document document(std::move(opened), name);
  struct stat status {};
  if (fstat(isInput ? STDIN_FILENO : document.file.get(), &status) != 0 || S_ISDIR(status.st_mode))
    return about(path.string(), "is a folder, not a file");
  if (!isInput && !S_ISREG(status.st_mode) && !S_ISFIFO(status.st_mode))
    return about(path.string(), "is a device, not a file");
  if (!isInput && S_ISREG(status.st_mode))
    document.bytesInAll = static_cast<std::uint64_t>(status.st_size);
  const auto found = document.lookAhead(cancel);
  if (!found) return Failure{found.reason()};
  if (!*found && !cancel) return about(isInput ? name : path.string(), "is empty");
  return document;
}

Document::Document(FileDescriptor theFile, std::string name)
    : file(std::move(theFile)), documentName(std::move(name)) {}

Result<bool> Document::lookAhead(const CancelFlag& cancel) {
  std::string bytes(kLookAhead, '\0');
  std::size_t length = 0;
  while (length < bytes.size()) {
    const auto more = readOn(std::span(bytes).subspan(length), cancel);
    if (!more) return Failure{more.reason()};
    if (*more == 0) break;
    length += *more;
  }
  bytes.resize(length);
  ahead = std::move(bytes);
  mimeType = formatOf(ahead);
  return !ahead.empty();
}

Result<std::size_t> Document::read(std::span<char> buffer, const CancelFlag& cancel) {
  if (ahead.empty()) return readOn(buffer, cancel);
  const std::size_t length = std::min(ahead.size(), buffer.size());
  std::copy_n(ahead.begin(), length, buffer.begin());
  ahead.erase(0, length);
  return length;
}

Result<std::size_t> Document::readOn(std::span<char> buffer, const CancelFlag& cancel) {
  const auto bytes = file ? readWhenThere(file.get(), buffer, cancel)
                          : RereadableInput::standardInput().read(offset, buffer, cancel);
  if (!bytes) return about(documentName, bytes.reason());
  offset += *bytes;
  return bytes;
}

}  // namespace tavrin
