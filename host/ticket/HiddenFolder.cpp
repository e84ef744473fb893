#include "host/ticket/HiddenFolder.h"

#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string>
#include <sys/stat.h>

namespace tavrin {

namespace {

// What mkdtemp makes is the user's alone.
void openToOthers(const std::filesystem::path& folder) {
  const mode_t mask = umask(0);
  umask(mask);
  chmod(folder.c_str(), 0777 & ~mask);
}

}  // namespace

HiddenFolder::HiddenFolder(const std::filesystem::path& parent) {
  std::string name = (parent / ".tavrin-job-XXXXXX").string();
  if (mkdtemp(name.data())) folder = name;
}

HiddenFolder::~HiddenFolder() {
  std::error_code ignored;
  if (!folder.empty()) std::filesystem::remove_all(folder, ignored);
}

bool HiddenFolder::keepAs(const std::filesystem::path& name) {
  openToOthers(folder);
  if (renameat2(AT_FDCWD, folder.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) != 0)
    return false;
  folder.clear();
  return true;
}

}  // namespace tavrin
