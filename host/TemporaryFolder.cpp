#include "host/TemporaryFolder.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>

namespace tavrin {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
  std::string name = (fs::temp_directory_path() / "tavrin-test-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
  folder = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

fs::path TemporaryFolder::write(const fs::path& name, const std::string& text) const {
  const fs::path file = folder / name;
  fs::create_directories(file.parent_path());
  std::ofstream stream(file, std::ios::binary);
  if (!stream.write(text.data(), static_cast<std::streamsize>(text.size())))
    throw std::runtime_error("cannot write " + file.string());
  return file;
}

std::string textOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace tavrin
