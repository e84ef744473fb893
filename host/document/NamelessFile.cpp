#include "host/document/NamelessFile.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace tavrin {

FileDescriptor namelessFile() {
  std::error_code problem;
  std::string name = std::filesystem::temp_directory_path(problem) / "tavrin-XXXXXX";
  if (problem) return {};
  FileDescriptor file(mkostemp(name.data(), O_CLOEXEC));
  if (file) unlink(name.c_str());
  return file;
}

}  // namespace tavrin
