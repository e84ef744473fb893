#include "host/impose/program/OutputPipe.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include "host/impose/pictures/Trouble.h"

namespace tavrin {

void OutputPipe::write(const unsigned char* data, std::size_t size) {
  if (problem == 0 && std::fwrite(data, 1, size, stdout) != size) problem = errno;
}

void OutputPipe::finish() {
  if (problem == 0 && std::fflush(stdout) != 0) problem = errno;
}

void OutputPipe::check() const {
  if (problem != 0)
    throw Trouble(Status::notWritten,
                  std::string("The sheets cannot be written: ") + std::strerror(problem) + ".");
}

}  // namespace tavrin
