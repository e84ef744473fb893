#include "host/ticket/TicketFolder.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "host/document/Document.h"
#include "host/support/HiddenFolder.h"
#include "host/ticket/DurableFile.h"
#include "host/ticket/Ticket.h"
#include "platform/text/Quoted.h"
#include "platform/text/Utf8.h"

namespace tavrin {

namespace fs = std::filesystem;

namespace {

constexpr char kTicketName[] = "ticket.json";
constexpr int kMostFolders = 10000;
constexpr std::size_t kLongestName = 100;  // bytes

Failure cannotWrite(const fs::path& output) {
  return {"The job cannot be written to the folder " + quoted(output.string()) + ": " +
          std::strerror(errno) + ". Choose another folder."};
}

// A folder's name for a title: no path, nothing hidden, not too long.
std::string folderName(const std::string& title) {
  std::string name(wholeCharacters(std::string_view(title).substr(0, kLongestName)));
  std::ranges::replace(name, '/', '_');
  if (name.empty() || name.front() == '.') name.insert(0, "job");
  return name;
}

// For the file that the ticket's command prints: lp would take "-" for standard input. A document
// that has been made ready for the printer is of another kind than its name says.
std::string nameInFolder(const JobRequest& request) {
  fs::path document = request.document.filename();
  if (document == kStandardInput) document = "document";
  if (!request.prepared.empty()) document.replace_extension(request.prepared.extension());
  const std::string name = documentName(document);
  return name == kTicketName ? "document-" + name : name;
}

// A copy that cannot be written is an answer, as a folder that refuses the job is.
Cancellable<Result<Done>> copyDocument(Document& document, const fs::path& path,
                                       const fs::path& output, const CancelFlag& cancel,
                                       const ProgressCallback& progress) {
  using Answer = Result<Done>;
  DurableFile copy(path);
  if (!copy) return Answer(cannotWrite(output));
  Answer written = Done{};
  const auto write = [&](std::span<const char> bytes) -> Cancellable<Done> {
    if (copy.write(bytes)) return Done{};
    written = cannotWrite(output);
    return Cancelled{};
  };
  const auto read = document.readAll(write, cancel, progress);
  if (!read && written) return read.why();
  if (written && !copy.finish()) return Answer(cannotWrite(output));
  return written;
}

bool writeTicket(const fs::path& folder, const std::string& text) {
  DurableFile file(folder / kTicketName);
  return file && file.write(text) && file.finish() && syncFolder(folder);
}

// Gives the folder the first name that is free.
Result<fs::path> publish(HiddenFolder& folder, const fs::path& output, const std::string& name) {
  for (int number = 1; number <= kMostFolders; ++number) {
    const fs::path path = output / (number == 1 ? name : name + "-" + std::to_string(number));
    if (folder.keepAs(path)) {
      syncFolder(output);
      return path;
    }
    if (errno != EEXIST) return cannotWrite(output);
  }
  return Failure{quoted(output.string()) + " is full of jobs named " + quoted(name) +
                 ". Move some of them away."};
}

}  // namespace

Cancellable<Result<fs::path>> writeTicketFolder(const fs::path& output, const JobRequest& request,
                                                const OptionList& options, const CancelFlag& cancel,
                                                const ProgressCallback& progress) {
  using Answer = Result<fs::path>;
  auto document = Document::open(sentFile(request), cancel);
  if (!document) return document.why();
  std::error_code problem;
  if (fs::create_directories(output, problem); problem) {
    errno = problem.value();
    return Answer(cannotWrite(output));
  }
  HiddenFolder folder(output);
  if (!folder) return Answer(cannotWrite(output));
  const std::string name = nameInFolder(request);
  const auto copied = copyDocument(*document, folder.path() / name, output, cancel, progress);
  if (!copied) return copied.why();
  if (!*copied) return Answer(Failure{copied->reason()});
  if (!writeTicket(folder.path(), ticketText(request, name, document->format(), options)))
    return Answer(cannotWrite(output));
  return publish(folder, output, folderName(jobTitle(request)));
}

}  // namespace tavrin
