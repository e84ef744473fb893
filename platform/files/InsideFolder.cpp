#include "platform/files/InsideFolder.h"

#include <algorithm>
#include <system_error>

namespace tavrin {

bool isInside(const std::filesystem::path& file, const std::filesystem::path& folder) {
  std::error_code missing;
  const auto realFolder = std::filesystem::canonical(folder, missing);
  if (missing) return false;
  const auto realFile = std::filesystem::canonical(file, missing);
  if (missing) return false;
  return std::ranges::mismatch(realFolder, realFile).in1 == realFolder.end();
}

}  // namespace tavrin
