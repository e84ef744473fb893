#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrin {

// The words with the separator between them.
inline std::string joined(const std::vector<std::string>& words,
                          std::string_view separator = ", ") {
  std::string text;
  for (const std::string& word : words) {
    if (!text.empty()) text += separator;
    text += word;
  }
  return text;
}

// The parts between the separators, empty ones included; the empty text has one part.
inline std::vector<std::string> partsOf(const std::string& text, char separator = ',') {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t end; (end = text.find(separator, start)) != std::string::npos; start = end + 1)
    parts.push_back(text.substr(start, end - start));
  parts.push_back(text.substr(start));
  return parts;
}

}  // namespace tavrin
