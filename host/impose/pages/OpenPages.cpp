#include "host/impose/pages/OpenPages.h"

#include <optional>

#include "host/impose/pages/DecodedPictures.h"
#include "host/impose/pages/JpegPicture.h"
#include "host/impose/pages/PDFPages.h"
#include "host/impose/pictures/HeifFrames.h"
#include "host/impose/pictures/QtFrames.h"
#include "host/impose/pictures/Trouble.h"
#include "platform/text/IgnoringCase.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

std::string pictureNamed(const std::filesystem::path& path) {
  return "The picture " + quoted(path.string());
}

// Absent when it must be decoded after all.
std::optional<JpegHeader> headerForPDF(const std::filesystem::path& path, Bytes file) {
  const auto header = jpegHeader(file);
  if (!header) throw Trouble(Status::damaged, pictureNamed(path) + " is damaged.");
  if (!header->isWhole)
    throw Trouble(Status::damaged,
                  pictureNamed(path) + " is cut off: its end is missing. Copy it anew.");
  return header->isForPDF ? header : std::nullopt;
}

std::unique_ptr<PageSource> openPicture(const std::filesystem::path& path) {
  const auto file = std::make_shared<MappedFile>(path);
  if (isJpeg(file->bytes()))
    if (const auto header = headerForPDF(path, file->bytes()))
      return std::make_unique<JpegPicture>(file, *header);
  if (HeifFrames::knows(file->bytes()))
    return std::make_unique<DecodedPictures>(std::make_shared<HeifFrames>(path, file));
  if (QtFrames::knows(path))
    return std::make_unique<DecodedPictures>(std::make_shared<QtFrames>(path, *file));
  throw Trouble(Status::unknownKind,
                quoted(path.string()) + " is no kind of picture that can be read here.");
}

}  // namespace

std::unique_ptr<PageSource> openPages(const std::string& format,
                                      const std::filesystem::path& file) {
  if (equalIgnoringCase(format, "application/pdf")) return std::make_unique<PDFPages>(file);
  if (equalIgnoringCase(format.substr(0, 6), "image/")) return openPicture(file);
  throw Trouble(Status::unknownKind,
                "A document of the kind " + quotedInShort(format) + " cannot be put on sheets.");
}

}  // namespace tavrin
