#pragma once

#include <filesystem>
#include <string>

namespace tavrin {

// A folder of a test's own, gone with all that is in it at the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return folder; }
  // Writes a file below the folder, with the folders above it.
  std::filesystem::path write(const std::filesystem::path& name, const std::string& text) const;

 private:
  std::filesystem::path folder;
};

// The whole text of a file; empty when it cannot be read.
std::string textOf(const std::filesystem::path& file);

}  // namespace tavrin
