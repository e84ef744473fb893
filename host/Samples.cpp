#include "host/Samples.h"

namespace tavrin {

namespace {

std::filesystem::path sampleFolder() {
  std::error_code ignored;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
  const auto installed = (program / TAVRIN_SAMPLE_FOLDER).lexically_normal();
  return std::filesystem::exists(installed, ignored) ? installed : TAVRIN_SOURCE_SAMPLES;
}

}  // namespace

Samples samples() {
  const std::filesystem::path folder = sampleFolder();
  return {folder / "printers" / "tavrin-r420.ppd", folder / "sample.pdf", folder / "root"};
}

}  // namespace tavrin
