#pragma once

#include <filesystem>

#include "platform/files/FileDescriptor.h"

namespace tavrin {

// One end of a connection through a socket in the file system.
class LocalSocket {
 public:
  LocalSocket();

  // Each false when it cannot.
  bool connectTo(const std::filesystem::path& place) const;
  bool listenAt(const std::filesystem::path& place) const;

  // For a library that works on it.
  int descriptor() const { return end.get(); }
  // Nobody can come or say anything any more. Any thread.
  void shut() const;

 private:
  FileDescriptor end;
};

}  // namespace tavrin
