#pragma once

#include "platform/files/FileDescriptor.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

// A socket to which nobody but this process can connect. It has no name in the file system, so that
// nothing is left behind however the program ends.
class PrivateEntrance {
 public:
  // Makes the socket; false in a condition when that fails.
  PrivateEntrance();
  explicit operator bool() const { return static_cast<bool>(listener); }

  // Where to connect to. Good for the entrance's life.
  AddressListPtr address() const;

  // For waiting with poll until somebody has come.
  int descriptor() const { return listener.get(); }
  // Lets in who has come, without waiting; nobody when none has.
  FileDescriptor letIn() const;
  // Turns everybody away from now on, and wakes who waits for the descriptor. Any thread.
  void shut() const;

 private:
  FileDescriptor listener;
  FileDescriptor inode;  // keeps the socket reachable when its name is gone
};

}  // namespace tavrin
