#include "host/program/Samples.h"

namespace tavrin {

Samples samples() {
  std::error_code ignored;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
  // The build tree has the same layout as an installation.
  const std::filesystem::path folder = program.parent_path() / "share" / "tavrin";
  return {folder / "printers" / "tavrin-r420.ppd", folder / "sample.pdf", folder / "root"};
}

}  // namespace tavrin
