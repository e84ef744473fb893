#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/impose/layout/Canvas.h"
#include "host/support/OptionList.h"
#include "platform/text/Result.h"

namespace tavrin {

struct NamedDocument {
  std::string format;  // its MIME type
  std::filesystem::path file;
};

// What the program is to do.
struct ImposeArguments {
  bool look = false;  // only look at the one document
  // Only put PDFs into one, with this digit for each of their pages: how many quarters of a circle
  // clockwise a reader turns it.
  std::string join;
  Paper paper;  // with room to print on
  bool wholeSheets = false;
  std::filesystem::path turns;  // the file for such digits of the sheets; empty for none
  OptionList options;
  std::vector<NamedDocument> documents;  // at least one
};

// Reads the arguments without the program's name; or says in a sentence what is wrong with them.
Result<ImposeArguments> imposeArguments(const std::vector<std::string>& arguments);

}  // namespace tavrin
