#pragma once

#include <filesystem>
#include <string>

namespace tavrin {

// The path that stands for standard input.
inline constexpr char kStandardInput[] = "-";

// The name that people know a document by: the file's without its folder; "(stdin)" for standard
// input, as lp has it.
inline std::string documentName(const std::filesystem::path& document) {
  return document == kStandardInput ? "(stdin)" : document.filename().string();
}

}  // namespace tavrin
