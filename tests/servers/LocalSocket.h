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

  // Waits for somebody to come.
  FileDescriptor nextCaller() const;
  void close() { end.close(); }

 private:
  FileDescriptor end;
};

}  // namespace tavrin
