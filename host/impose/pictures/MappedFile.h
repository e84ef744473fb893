#pragma once

#include <filesystem>
#include <span>

#include <QFile>

namespace tavrin {

using Bytes = std::span<const unsigned char>;

// A file's bytes, which are read from the disk as they are looked at.
class MappedFile {
 public:
  // Throws Trouble when the file cannot be read.
  explicit MappedFile(const std::filesystem::path& path);

  Bytes bytes() const { return contents; }

 private:
  QFile file;
  Bytes contents;
};

}  // namespace tavrin
