#pragma once

#include <filesystem>
#include <string>

namespace tavrin {

// The path that stands for standard input.
inline constexpr char kStandardInput[] = "-";

// A name as people read it and the print system takes it: UTF-8, without control characters (each
// becomes a blank), and cut at 255 bytes, between two characters.
std::string nameForPrinting(const std::string& name);

// The name that people know a document by: the file's without its folder, as nameForPrinting makes
// it; "(stdin)" for standard input, as lp has it.
std::string documentName(const std::filesystem::path& document);

// The same for a sentence: "standard input" for the document that has no name.
std::string nameInWords(const std::filesystem::path& document);

}  // namespace tavrin
