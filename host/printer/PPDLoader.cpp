#include "host/printer/PPDLoader.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <span>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "host/printer/PPDLimits.h"
#include "platform/files/FileDescriptor.h"
#include "platform/text/Quoted.h"
#include "platform/text/Utf8.h"
#include "ppd/PPDRecords.h"

namespace tavrin {

namespace {

Failure about(const std::string& name, const std::string& problem) {
  return {"The printer description " + quoted(name) + " " + problem + "."};
}

std::string megabytes(std::size_t bytes) { return std::to_string(bytes >> 20) + " MiB"; }

// A descriptor of its own on the start of the file, for a reader that closes what it reads.
int fromStart(int file) {
  lseek(file, 0, SEEK_SET);
  return fcntl(file, F_DUPFD_CLOEXEC, 0);
}

Failure parseFailure(const std::string& name) {
  int line = 0;
  const ppd_status_t status = ppdLastError(&line);
  const std::string place = line > 0 ? ", line " + std::to_string(line) : "";
  return about(name, "cannot be read" + place + ": " + ppdErrorString(status));
}

// libcups cuts a long text at the end of its field, be it inside a character.
void trim(std::span<char> field) {
  const std::size_t length = strnlen(field.data(), field.size());
  if (length + 1 < field.size()) return;
  const std::size_t whole = wholeCharacters({field.data(), length}).size();
  if (whole < length) field[whole] = '\0';
}

void trimTexts(ppd_group_t& group) {
  trim(group.text);
  for (ppd_option_t& option : optionsOf(group)) {
    trim(option.text);
    for (ppd_choice_t& choice : choicesOf(option)) trim(choice.text);
  }
  for (ppd_group_t& inner : subgroupsOf(group)) trimTexts(inner);
}

// What a panel expects of a PPD and libcups does not see to.
void makeSound(ppd_file_t& ppd) {
  // libcups has turned all texts into UTF-8, whether the file names an encoding or not.
  if (!ppd.lang_encoding) ppd.lang_encoding = strdup("UTF-8");  // freed by ppdClose
  for (ppd_group_t& group : groupsOf(ppd)) trimTexts(group);
}

}  // namespace

Result<PPDPtr> loadPPD(const std::filesystem::path& file) {
  // Without waiting: a FIFO would hold up the caller until somebody writes to it.
  const FileDescriptor opened(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!opened)
    return about(file.string(), std::string("cannot be opened: ") + std::strerror(errno));
  return loadPPD(opened.get(), file.string());
}

Result<PPDPtr> loadPPD(int fileDescriptor, const std::string& name) {
  struct stat status {};
  if (fstat(fileDescriptor, &status) != 0 || !S_ISREG(status.st_mode))
    return about(name, "is not a file");
  if (static_cast<std::size_t>(status.st_size) > kPPDFileLimit)
    return about(name, "is larger than " + megabytes(kPPDFileLimit));
  const CupsFilePtr text(cupsFileOpenFd(fromStart(fileDescriptor), "r"));
  std::string lines;
  if (const std::string broken = text ? brokenPPDLimit(*text, lines) : ""; !broken.empty())
    return about(name, broken);
  PPDPtr ppd(ppdOpenFd(fromStart(fileDescriptor)));
  if (!ppd) return parseFailure(name);
  makeSound(*ppd);
  ppd.get_deleter().text = std::make_shared<const std::string>(std::move(lines));
  return ppd;
}

}  // namespace tavrin
