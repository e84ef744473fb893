#include "platform/files/StandardStreams.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

#include "platform/text/Quoted.h"
#include "platform/text/Visible.h"

namespace tavrin {

void occupyStandardStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(stream, F_GETFD) >= 0) continue;
    // Gets the number of the stream, the lowest that is free. Opened in the wrong direction, so
    // that reading and writing fail as they did.
    const int wrongDirection = stream == STDIN_FILENO ? O_WRONLY : O_RDONLY;
    if (open("/dev/null", wrongDirection) < 0) open("/", O_PATH);
  }
}

bool canReadStandardInput() {
  const int flags = fcntl(STDIN_FILENO, F_GETFL);
  return flags >= 0 && (flags & O_PATH) == 0 && (flags & O_ACCMODE) != O_WRONLY;
}

void writeError(const std::string& program, const std::string& sentence) {
  std::cerr << visible(plainlyQuoted(program + ": " + sentence)) << '\n';
}

std::string writeOutput(const std::string& text) {
  errno = 0;
  std::cout << visibleLines(text) << std::flush;
  return std::cout ? "" : std::strerror(errno);
}

}  // namespace tavrin
