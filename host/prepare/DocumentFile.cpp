#include "host/prepare/DocumentFile.h"

#include <fstream>

#include "host/document/Document.h"
#include "host/document/DocumentName.h"

namespace tavrin {

namespace {

namespace fs = std::filesystem;

// A copy for a preview is not worth more room than this.
constexpr std::uint64_t kLargestCopy = 256 << 20;

constexpr char kNoRoom[] = "There is no room in the temporary folder for a preview.";

struct Found {
  fs::path file;
  std::string format;
};

Cancellable<Done> copy(Document& document, const fs::path& file, const CancelFlag& cancel) {
  std::ofstream stream(file, std::ios::binary);
  std::uint64_t room = kLargestCopy;
  const auto take = [&](std::span<const char> piece) -> Cancellable<Done> {
    if (piece.size() > room)
      return Failure{
          "A document as large as this one is shown and laid out only where it is a file. Save it "
          "as a file first, or print it without settings for its pages."};
    room -= piece.size();
    if (!stream.write(piece.data(), static_cast<std::streamsize>(piece.size())))
      return Failure{kNoRoom};
    return Done{};
  };
  auto done = document.readAll(take, cancel, {});
  if (done && !stream.flush()) return Failure{kNoRoom};
  return done;
}

// Commands get a name that is theirs to read, whatever bytes the document's own is made of.
Cancellable<Found> linked(const fs::path& path, const Found& link) {
  std::error_code problem;
  fs::create_symlink(fs::absolute(path), link.file, problem);
  if (problem) return Failure{kNoRoom};
  return link;
}

// The folder, which may be null, is for a copy.
Cancellable<Found> find(const fs::path& path, const HiddenFolder* folder,
                        const CancelFlag& cancel) {
  // What the preview takes out of a pipe that has a name would be missing in the job.
  std::error_code none;
  if (path != kStandardInput && fs::is_fifo(path, none))
    return Failure{
        "A document that can be read only once is neither shown nor laid out here. Save it as a "
        "file first, or print it without settings for its pages."};
  auto document = Document::open(path, cancel);
  if (!document) return document.why();
  if (!folder) return Failure{kNoRoom};
  const Found found{folder->path() / "document", document->format()};
  if (path != kStandardInput) return linked(path, found);
  if (const auto copied = copy(*document, found.file, cancel); !copied) return copied.why();
  return found;
}

}  // namespace

void DocumentFile::fetch(const fs::path& document) {
  if (!refusal.isEmpty()) return emit failed(refusal);
  stop();
  file.clear();
  folder = temporaryHiddenFolder();
  background.run([=, this, place = folder](const CancelFlag& cancel, const Background::Send& send) {
    const auto found = find(document, place.get(), cancel);
    if (found.cancelled()) return;
    send([=, this] {
      if (!found) return refuse(QString::fromStdString(found.reason()));
      file = found->file;
      itsFormat = found->format;
      emit ready();
    });
  });
}

// For good: what was read of a document that is too large would be read again at every change.
void DocumentFile::refuse(const QString& reason) {
  refusal = reason;
  folder.reset();
  emit failed(refusal);
}

}  // namespace tavrin
