#include "host/program/Launcher.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>

#include "host/program/Identity.h"
#include "host/program/ProblemWindow.h"
#include "platform/files/FileDescriptor.h"

namespace tavrin {
namespace {

constexpr std::array kStandardStreams{STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};

std::string_view variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

// Qt can be told to draw where nobody looks.
bool hasScreen() {
  const std::string_view platform = variable("QT_QPA_PLATFORM");
  if (platform.starts_with("offscreen") || platform.starts_with("minimal")) return false;
  return !variable("DISPLAY").empty() || !variable("WAYLAND_DISPLAY").empty();
}

bool isRead(int stream) {
  struct stat status {};
  return isatty(stream) || (fstat(stream, &status) == 0 && S_ISFIFO(status.st_mode));
}

bool belongsToTerminal() {
  return static_cast<bool>(FileDescriptor(open("/dev/tty", O_RDWR | O_CLOEXEC)));
}

// Nobody is to wait for the end of a stream until the window is closed.
void letGoOfStreams() {
  const FileDescriptor nothing(open("/dev/null", O_RDWR));
  for (const int stream : kStandardStreams) dup2(nothing.get(), stream);
}

void leaveWithoutScreen(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type == QtFatalMsg) std::_Exit(EXIT_FAILURE);
}

[[noreturn]] void showAlone(const std::string& sentence) {
  qInstallMessageHandler(leaveWithoutScreen);
  int count = 1;
  std::array<char, 13> name{"tavrin-print"};
  std::array<char*, 2> arguments{name.data(), nullptr};
  {
    const QApplication application(count, arguments.data());
    identifyProgram();
    ProblemWindow(sentence).exec();
  }
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace

bool isStartedFromLauncher() {
  return hasScreen() && std::ranges::none_of(kStandardStreams, isRead) && !belongsToTerminal();
}

void showInOwnProcess(const std::string& sentence) {
  if (fork() != 0) return;
  letGoOfStreams();
  showAlone(sentence);
}

}  // namespace tavrin
