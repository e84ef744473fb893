#include "host/program/Samples.h"

#include "platform/files/ProgramFolder.h"

namespace tavrin {

Samples samples() {
  const std::filesystem::path folder = programFolder().parent_path() / "share" / "tavrin";
  return {folder / "printers" / "tavrin-r420.ppd", folder / "sample.pdf", folder / "root"};
}

}  // namespace tavrin
