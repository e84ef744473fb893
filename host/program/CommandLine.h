#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/request/JobRequest.h"
#include "platform/text/Result.h"

namespace tavrin {

// What the person asked for on tavrin-print's command line.
struct CommandLine {
  enum class Wish { print, help, version };

  Wish wish = Wish::print;
  // -d, -n, -t, -o and the document; without -d no printer is named.
  JobRequest job;
  bool namesDocument = false;
  std::vector<std::filesystem::path> furtherDocuments;  // after the first one
  std::filesystem::path ppd;                            // --ppd; empty: the printer's own
  bool sample = false;                                  // --sample
  std::filesystem::path output = ".";                   // --output
  bool noPreview = false;                               // --no-preview
  bool withoutDialog = false;                           // --no-dialog
  std::filesystem::path save;                           // --save; empty: the sheets are printed
};

// Reads the arguments without the program's name, whatever bytes they are made of; or says in a
// sentence, in UTF-8, what is wrong with them.
Result<CommandLine> parseCommandLine(const std::vector<std::string>& arguments);

// The text of --help.
std::string usage();

}  // namespace tavrin
