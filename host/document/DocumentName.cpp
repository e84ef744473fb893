#include "host/document/DocumentName.h"

#include <algorithm>

#include "platform/text/Utf8.h"

namespace tavrin {

namespace {

constexpr std::size_t kLongestName = 255;  // bytes

bool isControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

}  // namespace

std::string nameForPrinting(const std::string& name) {
  std::string fitting = validUtf8(name);
  std::ranges::replace_if(fitting, isControl, ' ');
  return std::string(wholeCharacters(std::string_view(fitting).substr(0, kLongestName)));
}

std::string documentName(const std::filesystem::path& document) {
  return document == kStandardInput ? "(stdin)" : nameForPrinting(document.filename().string());
}

std::string nameInWords(const std::filesystem::path& document) {
  return document == kStandardInput ? "standard input" : documentName(document);
}

}  // namespace tavrin
