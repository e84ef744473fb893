#include "host/server/PrivateEntrance.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tavrin {

namespace {

namespace fs = std::filesystem;

// A file that is open here, as a path. It leads there whatever the file is called, if anything.
std::string pathOf(const FileDescriptor& file) {
  return "/proc/self/fd/" + std::to_string(file.get());
}

bool listenAt(const FileDescriptor& socket, const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof(address.sun_path) - 1);
  return bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0 &&
         listen(socket.get(), SOMAXCONN) == 0;
}

// A folder of the user's alone; the empty path when there can be none.
fs::path makeFolder() {
  std::error_code error;
  std::string name = (fs::temp_directory_path(error) / "tavrin-XXXXXX").string();
  return mkdtemp(name.data()) ? fs::path(name) : fs::path();
}

}  // namespace

PrivateEntrance::PrivateEntrance() {
  const fs::path folder = makeFolder();
  if (folder.empty()) return;
  // By its descriptor, as an address has no room for a long path.
  const FileDescriptor opened(open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  FileDescriptor made(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
  if (listenAt(made, pathOf(opened) + "/server")) listener = std::move(made);
  inode = FileDescriptor(openat(opened.get(), "server", O_PATH | O_CLOEXEC));
  unlinkat(opened.get(), "server", 0);
  rmdir(folder.c_str());
}

AddressListPtr PrivateEntrance::address() const {
  return AddressListPtr(httpAddrGetList(pathOf(inode).c_str(), AF_LOCAL, ""));
}

FileDescriptor PrivateEntrance::letIn() const {
  return FileDescriptor(accept4(listener.get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
}

void PrivateEntrance::shut() const { shutdown(listener.get(), SHUT_RDWR); }

}  // namespace tavrin
