#include "host/impose/program/FatalSignals.h"

#include <array>
#include <csignal>
#include <unistd.h>

#include "host/impose/pictures/Trouble.h"

namespace tavrin {

namespace {

constexpr char kSentence[] = "tavrin-impose: The document is damaged beyond reading.\n";
constexpr std::size_t kStack = 64 << 10;

// May do next to nothing: anything may be broken.
void end(int) {
  [[maybe_unused]] const auto written = write(STDERR_FILENO, kSentence, sizeof kSentence - 1);
  _exit(static_cast<int>(Status::damaged));
}

}  // namespace

void endWellOnFatalSignals() {
  static std::array<char, kStack> stack;
  const stack_t other{stack.data(), 0, stack.size()};
  sigaltstack(&other, nullptr);
  struct sigaction action {};
  action.sa_handler = end;
  action.sa_flags = SA_ONSTACK;
  for (const int signal : {SIGSEGV, SIGBUS}) sigaction(signal, &action, nullptr);
}

}  // namespace tavrin
