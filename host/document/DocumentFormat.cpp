#include "host/document/DocumentFormat.h"

#include <algorithm>
#include <array>

#include <QByteArray>
#include <QMimeDatabase>
#include <QString>

namespace tavrin {

namespace {

struct Signature {
  std::string_view start;
  const char* format;
};

// What most people print, without a look into the database of the desktop.
constexpr std::array<Signature, 3> kUsualFormats{{
    {"%!", "application/postscript"},
    {"\xFF\xD8\xFF", "image/jpeg"},
    {"\x89PNG\r\n\x1A\n", "image/png"},
}};

// Formats that the desktop and the print system call by the same name.
constexpr std::array<std::string_view, 7> kSharedNames{"image/gif",
                                                       "image/tiff",
                                                       "image/x-portable-anymap",
                                                       "image/x-portable-bitmap",
                                                       "image/x-portable-graymap",
                                                       "image/x-portable-pixmap",
                                                       "image/x-xpixmap"};

// Pictures of cameras and of the web, which the print system does not read; they are made ready for
// it.
constexpr std::array<std::string_view, 3> kMadeReady{"image/webp", "image/heif", "image/avif"};

// Beginnings of texts that the print system interprets.
constexpr std::array<std::string_view, 4> kReadByPrintSystem{"#CUPS", "#PDF-", "<", "#define"};

// The print system, too, takes a PDF that begins with empty lines.
bool isPDF(std::string_view start) {
  start.remove_prefix(std::min(start.find_first_not_of("\r\n"), start.size()));
  return start.starts_with("%PDF-");
}

bool isTextByte(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x80 || (byte >= ' ' && byte != 0x7F) ||
         (byte >= '\b' && byte <= '\r');  // backspace, tab, line ends, form feed
}

std::string formatOfText(std::string_view start) {
  const bool isRead = std::ranges::any_of(
      kReadByPrintSystem, [&](std::string_view beginning) { return start.starts_with(beginning); });
  return isRead ? kUnknownFormat : "text/plain";
}

// What the database of the desktop says, where the print system has the same name for it. Any other
// format is left for the print system to find out: it looks into compressed files, too.
std::string formatInDatabase(std::string_view start) {
  const QByteArray bytes(start.data(), static_cast<qsizetype>(start.size()));
  const std::string found = QMimeDatabase().mimeTypeForData(bytes).name().toStdString();
  const bool isShared = std::ranges::find(kSharedNames, found) != kSharedNames.end();
  const bool isMadeReady = std::ranges::find(kMadeReady, found) != kMadeReady.end();
  return isShared || isMadeReady ? found : kUnknownFormat;
}

}  // namespace

std::string formatOf(std::string_view start) {
  if (isPDF(start)) return "application/pdf";
  for (const Signature& usual : kUsualFormats)
    if (start.starts_with(usual.start)) return usual.format;
  const std::string found = formatInDatabase(start);
  // A text may begin like anything, and some pictures are written in letters.
  const bool isText = std::ranges::all_of(start, isTextByte) && !found.starts_with("image/");
  return isText ? formatOfText(start) : found;
}

}  // namespace tavrin
