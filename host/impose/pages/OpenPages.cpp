#include "host/impose/pages/OpenPages.h"

#include "host/impose/pages/JpegPicture.h"
#include "host/impose/pages/PDFPages.h"
#include "host/impose/pages/Trouble.h"
#include "platform/text/IgnoringCase.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

std::unique_ptr<PageSource> openPicture(const std::filesystem::path& path) {
  auto file = std::make_shared<MappedFile>(path);
  if (!isJpeg(file->bytes()))
    throw Trouble(Status::unknownKind,
                  quoted(path.string()) + " is no kind of picture that can be read here.");
  const auto header = jpegHeader(file->bytes());
  if (!header)
    throw Trouble(Status::damaged, "The picture " + quoted(path.string()) + " is damaged.");
  if (!header->isWhole)
    throw Trouble(Status::damaged, "The picture " + quoted(path.string()) +
                                       " is cut off: its end is missing. Copy it anew.");
  return std::make_unique<JpegPicture>(file, *header);
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
