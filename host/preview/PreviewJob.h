#pragma once

#include <filesystem>
#include <string>

#include "host/document/DocumentName.h"
#include "host/support/OptionList.h"

namespace tavrin {

// What a preview shows: a document as one copy of it comes out of a printer.
struct PreviewJob {
  std::filesystem::path document = kStandardInput;
  std::string ppd;         // its text; empty for a printer that takes documents as they are
  OptionList options;      // as the job has them
  std::string title = {};  // of the job, which some filters print

  bool operator==(const PreviewJob&) const = default;
};

}  // namespace tavrin
