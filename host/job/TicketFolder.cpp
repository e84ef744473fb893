#include "host/job/TicketFolder.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <nlohmann/json.hpp>

#include "host/job/JobOptions.h"
#include "platform/text/Utf8.h"

namespace tavrin {

namespace fs = std::filesystem;

namespace {

constexpr char kTicketName[] = "ticket.json";
constexpr int kMostFolders = 10000;
constexpr std::size_t kLongestName = 100;  // bytes

Failure cannotWrite(const fs::path& output) {
  return {"The job cannot be written to the folder \"" + output.string() +
          "\": " + std::strerror(errno) + ". Choose another folder."};
}

// A new hidden folder that goes away with everything in it, unless it is kept under a name.
class HiddenFolder {
 public:
  explicit HiddenFolder(const fs::path& parent) {
    std::string name = (parent / ".tavrin-job-XXXXXX").string();
    if (mkdtemp(name.data())) folder = name;
  }
  HiddenFolder(const HiddenFolder&) = delete;
  HiddenFolder& operator=(const HiddenFolder&) = delete;
  ~HiddenFolder() {
    std::error_code ignored;
    if (!folder.empty()) fs::remove_all(folder, ignored);
  }

  explicit operator bool() const { return !folder.empty(); }
  const fs::path& path() const { return folder; }

  // False when there is something of that name already, or on failure.
  bool keepAs(const fs::path& name) {
    if (renameat2(AT_FDCWD, folder.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) != 0)
      return false;
    folder.clear();
    return true;
  }

 private:
  fs::path folder;
};

// A folder's name for a title: no path, nothing hidden, not too long.
std::string folderName(const std::string& title) {
  std::string name(wholeCharacters(std::string_view(title).substr(0, kLongestName)));
  for (char& c : name)
    if (c == '/' || static_cast<unsigned char>(c) < ' ' || c == '\x7f') c = '_';
  if (name.empty() || name.front() == '.') name.insert(0, "job");
  return name;
}

std::string documentFileName(const Document& document, const JobRequest& request) {
  const bool isInput = request.document == "-";
  const std::string name = isInput ? "document" : document.name();
  return name == kTicketName ? "document-" + name : name;
}

FileDescriptor newFile(const fs::path& path) {
  return FileDescriptor(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
}

bool writeAll(int file, std::span<const char> bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return true;
}

// What is not on the disk when the folder gets its name could be missing after a power cut.
bool finish(FileDescriptor& file) { return fsync(file.get()) == 0 && file.close(); }

bool syncFolder(const fs::path& folder) {
  const FileDescriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return opened && fsync(opened.get()) == 0;
}

// False once cancelled.
Result<bool> copyDocument(Document& document, const fs::path& output, const fs::path& path,
                          const CancelFlag& cancel, const ProgressCallback& progress) {
  FileDescriptor file = newFile(path);
  if (!file) return cannotWrite(output);
  std::array<char, 65536> buffer;
  for (Progress copied{0, document.size()};;) {
    const auto bytes = document.read(buffer, cancel);
    if (!bytes) return Failure{bytes.reason()};
    if (cancel) return false;
    if (*bytes == 0) break;
    if (!writeAll(file.get(), std::span(buffer).first(*bytes))) return cannotWrite(output);
    copied.done += *bytes;
    if (progress) progress(copied);
  }
  if (!finish(file)) return cannotWrite(output);
  return true;
}

std::string ticketText(const JobRequest& request, const OptionList& options,
                       const Document& document) {
  using Json = nlohmann::ordered_json;
  Json ticket;
  ticket["title"] = jobTitle(request);
  ticket["document"] = documentFileName(document, request);
  ticket["format"] = document.format();
  ticket["copies"] = request.copies;
  ticket["ranges"] = request.pageRanges.empty() ? Json() : Json(request.pageRanges);
  ticket["options"] = Json::object();
  for (const auto& [name, value] : options) ticket["options"][name] = value;
  JobRequest inFolder = request;
  inFolder.document = documentFileName(document, request);
  ticket["command"] = lpCommand(inFolder, options);
  // A title or file name may hold any bytes, JSON may not.
  return ticket.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

bool writeTicket(const fs::path& path, const std::string& text) {
  FileDescriptor file = newFile(path);
  return file && writeAll(file.get(), text) && finish(file);
}

// Gives the folder the first name that is free.
Result<fs::path> publish(HiddenFolder& folder, const fs::path& output, const std::string& name) {
  // What mkdtemp makes is the user's alone; a job is as open as the user's other files.
  const mode_t mask = umask(0);
  umask(mask);
  chmod(folder.path().c_str(), 0777 & ~mask);
  for (int number = 1; number <= kMostFolders; ++number) {
    const fs::path path = output / (number == 1 ? name : name + "-" + std::to_string(number));
    if (folder.keepAs(path)) {
      syncFolder(output);
      return path;
    }
    if (errno != EEXIST) return cannotWrite(output);
  }
  return Failure{"\"" + output.string() + "\" is full of jobs named \"" + name +
                 "\". Move some of them away."};
}

}  // namespace

Result<fs::path> writeTicketFolder(const fs::path& output, const JobRequest& request,
                                   const OptionList& options, const CancelFlag& cancel,
                                   const ProgressCallback& progress) {
  auto document = Document::open(request.document, cancel);
  if (!document) return Failure{document.reason()};
  std::error_code problem;
  if (fs::create_directories(output, problem); problem) {
    errno = problem.value();
    return cannotWrite(output);
  }
  HiddenFolder folder(output);
  if (!folder) return cannotWrite(output);
  const auto copied = copyDocument(
      *document, output, folder.path() / documentFileName(*document, request), cancel, progress);
  if (!copied) return Failure{copied.reason()};
  if (!*copied) return fs::path();
  if (!writeTicket(folder.path() / kTicketName, ticketText(request, options, *document)) ||
      !syncFolder(folder.path()))
    return cannotWrite(output);
  return publish(folder, output, folderName(jobTitle(request)));
}

}  // namespace tavrin
