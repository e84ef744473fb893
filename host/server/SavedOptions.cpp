#include "host/server/SavedOptions.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/text/IgnoringCase.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

namespace {

// "queue" or "queue/instance", taken apart.
struct Destination {
  explicit Destination(const std::string& text) : queue(text.substr(0, text.find('/'))) {
    if (queue.size() < text.size()) instance = text.substr(queue.size() + 1);
  }
  const char* instanceOrNull() const { return instance.empty() ? nullptr : instance.c_str(); }

  std::string queue;
  std::string instance;
};

// What follows a line's keyword: a destination and its options.
void addLine(DestinationArray& destinations, const std::string& text, bool isDefault) {
  const std::size_t end = text.find_first_of(" \t");
  const Destination named(text.substr(0, end));
  if (!destinations.find(named.queue.c_str(), nullptr)) return;
  cups_dest_t& destination = destinations.add(named.queue.c_str(), named.instanceOrNull());
  if (end != std::string::npos)
    destination.num_options =
        cupsParseOptions(text.c_str() + end, destination.num_options, &destination.options);
  if (isDefault) destinations.setDefault(named.queue.c_str(), named.instanceOrNull());
}

constexpr off_t kLargestFile = 1 << 20;

// Null for what is no file, where a FIFO would be waited for, and for one that nobody has written
// by hand or with lpoptions.
CupsFilePtr openFile(const std::string& path) {
  struct stat status {};
  const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file >= 0 &&
      (fstat(file, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > kLargestFile)) {
    close(file);
    return nullptr;
  }
  return CupsFilePtr(file < 0 ? nullptr : cupsFileOpenFd(file, "r"));  // which closes it
}

void addFile(DestinationArray& destinations, const std::string& path) {
  const CupsFilePtr file = openFile(path);
  std::array<char, 8192> line;
  char* value = nullptr;
  int number = 0;
  while (file && cupsFileGetConf(file.get(), line.data(), line.size(), &value, &number)) {
    const bool isDefault = equalIgnoringCase(line.data(), "default");
    if (value && (isDefault || equalIgnoringCase(line.data(), "dest")))
      addLine(destinations, value, isDefault);
  }
}

std::string environment(const char* name, const char* otherwise) {
  const char* value = std::getenv(name);
  return value && *value ? value : otherwise;
}

// As for lp, where PRINTER=lp is everybody's and means nothing.
void addDefaultOfEnvironment(DestinationArray& destinations) {
  const std::string printer = environment("PRINTER", "");
  const Destination named(environment("LPDEST", printer == "lp" ? "" : printer.c_str()));
  destinations.setDefault(named.queue.c_str(), named.instanceOrNull());
}

}  // namespace

void addSavedOptions(DestinationArray& destinations) {
  addFile(destinations, environment("CUPS_SERVERROOT", TAVRIN_CUPS_SERVERROOT) + "/lpoptions");
  if (const std::string home = environment("HOME", ""); !home.empty())
    addFile(destinations, home + "/.cups/lpoptions");
  addDefaultOfEnvironment(destinations);
}

}  // namespace tavrin
