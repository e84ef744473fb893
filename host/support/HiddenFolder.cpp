#include "host/support/HiddenFolder.h"

#include <cstdlib>
#include <fcntl.h>
#include <mutex>
#include <set>
#include <stdio.h>
#include <stdlib.h>
#include <string>
#include <sys/stat.h>

namespace tavrin {

namespace {

namespace fs = std::filesystem;

void removeWithContents(const fs::path& folder) {
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

// The folders that are there now. Never destroyed: threads that nobody joins may still be at work
// while the program ends.
class HiddenFolders {
 public:
  static HiddenFolders& all() {
    static auto* folders = new HiddenFolders;  // NOLINT(cppcoreguidelines-owning-memory)
    return *folders;
  }
  void add(const fs::path& folder) {
    const std::lock_guard lock(mutex);
    folders.insert(folder);
  }
  void forget(const fs::path& folder) {
    const std::lock_guard lock(mutex);
    folders.erase(folder);
  }

 private:
  HiddenFolders() {
    std::atexit([] { all().removeAll(); });
  }
  void removeAll() {
    const std::lock_guard lock(mutex);
    for (const fs::path& folder : folders) removeWithContents(folder);
  }

  std::mutex mutex;
  std::set<fs::path> folders;
};

// What mkdtemp makes is the user's alone.
void openToOthers(const std::filesystem::path& folder) {
  const mode_t mask = umask(0);
  umask(mask);
  chmod(folder.c_str(), 0777 & ~mask);
}

}  // namespace

HiddenFolder::HiddenFolder(const std::filesystem::path& parent) {
  std::string name = (parent / ".tavrin-XXXXXX").string();
  if (!mkdtemp(name.data())) return;
  folder = name;
  HiddenFolders::all().add(folder);
}

HiddenFolder::~HiddenFolder() {
  if (folder.empty()) return;
  removeWithContents(folder);
  HiddenFolders::all().forget(folder);
}

bool HiddenFolder::keepAs(const std::filesystem::path& name) {
  openToOthers(folder);
  if (renameat2(AT_FDCWD, folder.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) != 0)
    return false;
  HiddenFolders::all().forget(folder);
  folder.clear();
  return true;
}

std::shared_ptr<const HiddenFolder> temporaryHiddenFolder() {
  std::error_code problem;
  const fs::path parent = fs::temp_directory_path(problem);
  if (problem) return nullptr;
  const auto folder = std::make_shared<const HiddenFolder>(parent);
  return *folder ? folder : nullptr;
}

}  // namespace tavrin
