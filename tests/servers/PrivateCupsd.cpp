#include "tests/servers/PrivateCupsd.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <signal.h>
#include <spawn.h>
#include <sstream>
#include <stdexcept>
#include <stdlib.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <cups/cups.h>

#include "platform/text/IgnoringCase.h"
#include "tests/fakes/FakePPD.h"
#include "tests/servers/LocalSocket.h"

namespace tavrin {

namespace fs = std::filesystem;

namespace {

constexpr char kServer[] = "/usr/sbin/cupsd";
constexpr std::chrono::seconds kPatience(20);

constexpr char kBackEnd[] = R"(#!/bin/sh
[ $# -eq 0 ] && { echo 'direct capture "Unknown" "Capture"'; exit 0; }
out=${DEVICE_URI#capture:}
printf '%s\n' "$2" "$3" "$4" "$5" > "$out/job-$1.args"
cat ${6:+"$6"} > "$out/job-$1.part"
mv "$out/job-$1.part" "$out/job-$1.data"
)";

constexpr char kAccess[] = R"(
LogLevel debug
Browsing Off
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
<Policy accounts>
  <Limit All>
    AuthType Basic
    Require valid-user
  </Limit>
</Policy>
)";

// Waits for something to come true; throws when that takes too long.
void waitUntil(const std::function<bool()>& done, const std::string& what) {
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!done()) {
    if (std::chrono::steady_clock::now() > end) throw std::runtime_error("waited in vain: " + what);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

bool accepts(const fs::path& socketPath) {
  const LocalSocket probe;
  return probe.connectTo(socketPath);
}

std::vector<std::string> splitOptions(const std::string& line) {
  std::istringstream words(line);
  std::vector<std::string> options;
  for (std::string word; words >> word;) options.push_back(word);
  return options;
}

std::string nameOf(const std::string& option) {
  const std::size_t equals = option.find('=');
  if (equals != std::string::npos) return option.substr(0, equals);
  return option.starts_with("no") ? option.substr(2) : option;
}

// Starts a program with these arguments. Its process number.
pid_t startProgram(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  pid_t process = -1;
  if (posix_spawnp(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
    throw std::runtime_error("cannot start " + command.front());
  return process;
}

}  // namespace

PrivateCupsd::PrivateCupsd() {
  if (access(kServer, X_OK) != 0) throw std::runtime_error("cupsd is not installed");
  writeConfiguration();
  start();
  setenv("CUPS_SERVER", (folder() / "run/cups.sock").c_str(), 1);
  // Else root's options for destinations would be the whole machine's.
  setenv("CUPS_SERVERROOT", (folder() / "etc").c_str(), 1);
  setenv("HOME", (folder() / "home").c_str(), 1);
  cupsSetServer(nullptr);  // libcups looks at the environment again
}

PrivateCupsd::~PrivateCupsd() {
  stop();
  unsetenv("CUPS_SERVER");
  unsetenv("CUPS_SERVERROOT");
}

void PrivateCupsd::writeConfiguration() const {
  const fs::path top = folder();
  fs::permissions(top, fs::perms(0755));  // the filters run as another user
  for (const char* name :
       {"etc/ppd", "run", "cache", "spool", "log", "tmp", "out", "home", "bin/backend"})
    fs::create_directories(top / name);
  fs::permissions(top / "tmp", fs::perms(01777));
  for (const char* name : {"daemon", "notifier", "cgi-bin", "monitor", "filter"})
    fs::create_directory_symlink(fs::path("/usr/lib/cups") / name, top / "bin" / name);
  // Readable by its owner alone, so that a server that root has started runs it as root, who may
  // write to the folder.
  fs::permissions(scratch.write("bin/backend/capture", kBackEnd), fs::perms(0700));
  std::ostringstream files;
  files << "ServerRoot " << (top / "etc").string() << "\nStateDir " << (top / "run").string()
        << "\nCacheDir " << (top / "cache").string() << "\nRequestRoot " << (top / "spool").string()
        << "\nTempDir " << (top / "tmp").string() << "\nServerBin " << (top / "bin").string()
        << "\nAccessLog " << (top / "log/access").string() << "\nErrorLog "
        << (top / "log/error").string() << "\nPageLog " << (top / "log/page").string()
        << "\nSystemGroup root lpadmin\n";
  scratch.write("etc/cups-files.conf", files.str());
  scratch.write("etc/cupsd.conf", "Listen " + (top / "run/cups.sock").string() + kAccess);
}

void PrivateCupsd::start() {
  server = startProgram(
      {kServer, "-f", "-c", folder() / "etc/cupsd.conf", "-s", folder() / "etc/cups-files.conf"});
  waitUntil([&] { return accepts(folder() / "run/cups.sock"); }, "the print server");
}

void PrivateCupsd::stop() {
  if (server < 0) return;
  kill(server, SIGTERM);
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
  while (waitpid(server, nullptr, WNOHANG) == 0) {
    if (std::chrono::steady_clock::now() > end) kill(server, SIGKILL);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

void PrivateCupsd::run(const std::vector<std::string>& command) const {
  int status = 0;
  waitpid(startProgram(command), &status, 0);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
    throw std::runtime_error(command.front() + " failed");
}

void PrivateCupsd::addQueue(const std::string& queue, const fs::path& ppd) const {
  run({"lpadmin", "-p", queue, "-E", "-v", "capture:" + (folder() / "out").string(), "-P", ppd});
}

void PrivateCupsd::addPlainQueue(const std::string& queue) const {
  addQueue(queue,
           scratch.write(queue + ".ppd",
                         ppdText({paperTypeOption(), mirrorOption(), printQualityOption()},
                                 {"*cupsFilter2: \"application/pdf application/pdf 0 -\""})));
}

void PrivateCupsd::stopQueue(const std::string& queue) const { run({"cupsdisable", queue}); }

bool PrivateCupsd::CapturedJob::has(const std::string& option) const {
  return std::find(options.begin(), options.end(), option) != options.end();
}

int PrivateCupsd::CapturedJob::named(const std::string& name) const {
  return static_cast<int>(std::count_if(options.begin(), options.end(), [&](const auto& option) {
    return equalIgnoringCase(nameOf(option), name);
  }));
}

PrivateCupsd::CapturedJob PrivateCupsd::waitForJob(int jobId) const {
  const fs::path base = folder() / "out" / ("job-" + std::to_string(jobId));
  waitUntil([&] { return fs::exists(base.string() + ".data"); }, "job " + std::to_string(jobId));
  std::istringstream lines(test::textOf(base.string() + ".args"));
  CapturedJob job;
  std::string options;
  std::getline(lines, job.user);
  std::getline(lines, job.title);
  std::getline(lines, job.copies);
  std::getline(lines, options);
  job.options = splitOptions(options);
  job.data = test::textOf(base.string() + ".data");
  return job;
}

}  // namespace tavrin
