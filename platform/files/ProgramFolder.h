#pragma once

#include <filesystem>

namespace tavrin {

// The folder of the program that runs, whatever link it was started by; empty if it is unknown.
// What belongs to the program is found from here: the build tree has the layout of an installation.
inline std::filesystem::path programFolder() {
  std::error_code unknown;
  return std::filesystem::read_symlink("/proc/self/exe", unknown).parent_path();
}

}  // namespace tavrin
