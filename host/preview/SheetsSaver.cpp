#include "host/preview/SheetsSaver.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include "host/prepare/FilterCall.h"
#include "host/prepare/Imposer.h"
#include "host/support/Cancellable.h"
#include "host/ticket/DurableFile.h"
#include "platform/files/FileDescriptor.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

namespace fs = std::filesystem;

using Existing = SheetsSaver::Existing;

constexpr char kUnitedFile[] = "united.pdf";
constexpr std::size_t kPiece = 1 << 16;  // bytes
constexpr int kQuarter = 90;
constexpr LimitedCommand::Limits kUniteLimits{
    std::chrono::seconds(60), imposerMemory(std::uint64_t(3) << 30), std::uint64_t(4) << 30};

Failure cannotSave(const fs::path& file, int problem) {
  if (problem == EEXIST)
    return {"There is a file " + quoted(file.string()) +
            " already, which stays as it is. Choose another name."};
  return {"The sheets cannot be saved as " + quoted(file.string()) + ": " + std::strerror(problem) +
          ". Choose another folder."};
}

bool copyInto(DurableFile& copy, const FileDescriptor& original, const CancelFlag& cancel) {
  std::array<char, kPiece> piece{};
  ssize_t count = 0;
  while (!cancel && (count = read(original.get(), piece.data(), piece.size())) > 0)
    if (!copy.write(std::span(piece).first(static_cast<std::size_t>(count)))) return false;
  return count == 0 && copy.finish();
}

// A name that is taken stays its file's, whoever made it and however short a time ago.
bool publish(const fs::path& copy, const fs::path& target, Existing existing) {
  if (existing == Existing::isReplaced) return rename(copy.c_str(), target.c_str()) == 0;
  if (renameat2(AT_FDCWD, copy.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
    return true;
  // Some file systems of other computers do not know that; a second name does the same there.
  return errno == EINVAL && link(copy.c_str(), target.c_str()) == 0;
}

Cancellable<Done> copyTo(const fs::path& pdf, const fs::path& target, Existing existing,
                         const CancelFlag& cancel) {
  std::error_code none;
  if (existing == Existing::stays && fs::exists(fs::symlink_status(target, none)))
    return cannotSave(target, EEXIST);
  const FileDescriptor original(open(pdf.c_str(), O_RDONLY | O_CLOEXEC));
  const HiddenFolder besides(target.has_parent_path() ? target.parent_path() : fs::path("."));
  if (!original || !besides) return cannotSave(target, errno);
  const fs::path copy = besides.path() / kUnitedFile;
  DurableFile file(copy);
  const bool isWritten = file && copyInto(file, original, cancel);
  if (cancel) return Cancelled{};
  if (!isWritten || !publish(copy, target, existing)) return cannotSave(target, errno);
  return Done{};
}

}  // namespace

void SheetsSaver::save(const Preparation& preparation, const fs::path& file, Existing existing) {
  target = file;
  whatIsThere = existing;
  isForFile = preparation.isForFile;
  maker = std::make_unique<SheetsMaker>(preparation);
  connect(maker.get(), &SheetsMaker::failed, this, &SheetsSaver::fail);
  connect(maker.get(), &SheetsMaker::nothingLeft, this, &SheetsSaver::nothingLeft);
  connect(maker.get(), &SheetsMaker::made, this, &SheetsSaver::take);
  maker->start();
}

void SheetsSaver::take(const Sheets& sheets) {
  made = sheets;
  std::string turns;
  bool isAsItIs = made.documents.size() == 1;
  for (const LaidOutDocument& document : made.documents)
    for (const Sheet& sheet : document.list) {
      const int turn = isForFile ? sheet.upright : sheet.rotation;
      isAsItIs = isAsItIs && turn == sheet.rotation;
      turns += static_cast<char>('0' + turn / kQuarter);
    }
  isAsItIs ? write(made.documents.front().pdf) : unite(turns);
}

void SheetsSaver::unite(const std::string& turns) {
  folder = temporaryHiddenFolder();
  if (!folder) return fail(tr("There is no room in the temporary folder to save the sheets."));
  QStringList arguments{"--join", QString::fromStdString(turns)};
  for (const LaidOutDocument& document : made.documents)
    arguments << kPDF << QString::fromStdString(document.pdf.string());
  const fs::path united = folder->path() / kUnitedFile;
  command = std::make_unique<LimitedCommand>(
      LimitedCommand::Call{imposer(), arguments, folder->path(), united, kUniteLimits});
  connect(command.get(), &LimitedCommand::ended, this, [=, this](LimitedCommand::End end) {
    if (end == LimitedCommand::End::well) return write(united);
    fail(made.documents.size() > 1
             ? tr("The sheets of the documents cannot be put into one file. Save them one by one.")
             : tr("The sheets cannot be put into a file. Save fewer pages at a time."));
  });
  command->start();
}

void SheetsSaver::write(const fs::path& pdf) {
  isWriting = true;
  background.run([=, this, file = target, existing = whatIsThere](const CancelFlag& cancel,
                                                                  const Background::Send& send) {
    const auto end = copyTo(pdf, file, existing, cancel);
    send([=, this] {
      made = {};
      isWriting = false;
      if (end) return emit saved(file);
      if (end.cancelled()) return emit cancelled();
      emit failed(QString::fromStdString(end.reason()));
    });
  });
}

void SheetsSaver::cancel() {
  if (isWriting) return background.cancel();
  maker.reset();
  command.reset();
  made = {};
  QMetaObject::invokeMethod(this, &SheetsSaver::cancelled, Qt::QueuedConnection);
}

void SheetsSaver::fail(const QString& reason) {
  made = {};
  emit failed(reason);
}

}  // namespace tavrin
