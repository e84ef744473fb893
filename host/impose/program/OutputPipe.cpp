#include "host/impose/program/OutputPipe.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "host/impose/pictures/Trouble.h"

namespace tavrin {

namespace {

void check(bool isWell) {
  if (!isWell)
    throw Trouble(Status::notWritten,
                  std::string("The sheets cannot be written: ") + std::strerror(errno) + ".");
}

}  // namespace

void OutputPipe::write(const unsigned char* data, std::size_t size) {
  check(std::fwrite(data, 1, size, stdout) == size);
}

void OutputPipe::finish() { check(std::fflush(stdout) == 0); }

}  // namespace tavrin
