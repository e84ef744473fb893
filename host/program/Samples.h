#pragma once

#include <filesystem>

namespace tavrin {

// The sample printer that comes with the program, for trying it without one. The paths are of
// files that are missing where the samples are not installed.
struct Samples {
  std::filesystem::path ppd;
  std::filesystem::path document;
  std::filesystem::path root;  // the folder that stands for "/" to the sample printer's software
};

// The samples that were installed, or built, with the program that runs.
Samples samples();

}  // namespace tavrin
