#include "platform/files/RootFolder.h"

#include <utility>

namespace tavrin {
namespace {

std::filesystem::path& rootFolder() {
  static std::filesystem::path root;
  return root;
}

}  // namespace

void setRootFolder(std::filesystem::path root) { rootFolder() = std::move(root); }

std::filesystem::path pathBelowRoot(const std::string& absolutePath) {
  const std::filesystem::path path(absolutePath);
  if (!path.is_absolute() || absolutePath.find('\0') != std::string::npos) return {};
  for (const auto& component : path) {
    if (component == "..") return {};
  }
  return rootFolder().empty() ? path : rootFolder() / path.relative_path();
}

}  // namespace tavrin
