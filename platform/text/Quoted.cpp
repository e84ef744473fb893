#include "platform/text/Quoted.h"

#include "platform/text/Utf8.h"

namespace tavrin {

std::string quoted(const std::string& name) { return '"' + name + '"'; }

std::string quotedInShort(const std::string& text) {
  constexpr std::size_t kLongest = 200;
  if (text.size() <= kLongest) return quoted(text);
  const std::string_view start = std::string_view(text).substr(0, kLongest);
  return quoted(std::string(wholeCharacters(start)) + "...");
}

std::string plainlyQuoted(std::string_view sentence) {
  std::string plain;
  while (!sentence.empty()) {
    const bool isMark = sentence.starts_with("“") || sentence.starts_with("”");
    plain += isMark ? '"' : sentence.front();
    sentence.remove_prefix(isMark ? std::string_view("“").size() : 1);
  }
  return plain;
}

std::string shellQuoted(const std::string& word) {
  std::string quotedWord = "'";
  for (const char c : word) quotedWord += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quotedWord + "'";
}

}  // namespace tavrin
