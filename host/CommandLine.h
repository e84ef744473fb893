#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <QStringList>

#include "platform/Result.h"

namespace tavrin {

// What the person asked for on tavrin-print's command line.
struct CommandLine {
  enum class Wish { print, help, version };

  Wish wish = Wish::print;
  std::string destination;            // -d, "printer" or "printer/instance"; empty: the default one
  std::filesystem::path ppd;          // --ppd; empty: the printer's own
  bool sample = false;                // --sample
  std::filesystem::path output = "."; // --output
  int copies = 1;                     // -n
  std::string title;                  // -t; empty: the document's name
  std::vector<std::pair<std::string, std::string>> options;  // -o, in their order
  std::string document;               // a file, or "-" for standard input
};

// Reads the arguments without the program's name; or says in a sentence what is wrong with them.
Result<CommandLine> parseCommandLine(const QStringList& arguments);

// The text of --help.
std::string usage();

}  // namespace tavrin
