#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/text/Result.h"

namespace tavrin {

// What the command line asks for. An empty path stands for an option that was not given.
struct Options {
  std::filesystem::path bundle;
  std::filesystem::path root;
  std::filesystem::path screenshots;
  std::filesystem::path script;  // empty: standard input
  bool help = false;
};

// Reads the arguments, the program's name first, whatever bytes they are made of. The reason, in
// UTF-8, names the argument that cannot be understood.
Result<Options> parseOptions(const std::vector<std::string>& arguments);

// How to use the program, and the commands of a script.
std::string helpText();

}  // namespace tavrin
