#include "platform/files/HtmlTitle.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "platform/text/IgnoringCase.h"
#include "platform/text/Utf8.h"

namespace tavrin {
namespace {

using std::string_view;

constexpr string_view kBlanks = " \t\r\n\f";
constexpr std::array<std::pair<string_view, char>, 4> kEntities = {
    {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}}};

// Takes off the text before the mark, and the mark, and returns the text; takes all if there is no
// mark.
string_view takeUntil(string_view& text, string_view mark) {
  const std::size_t end = text.find(mark);
  const string_view taken = text.substr(0, end);
  text.remove_prefix(end == string_view::npos ? text.size() : end + mark.size());
  return taken;
}

void skip(string_view& text, string_view characters) {
  text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
}

string_view takeWord(string_view& text, string_view ends) {
  const string_view word = text.substr(0, text.find_first_of(ends));
  text.remove_prefix(word.size());
  return word;
}

// The value of an attribute, from where it starts.
string_view takeValue(string_view& tag) {
  if (tag.starts_with('"') || tag.starts_with('\'')) {
    const string_view quote = tag.substr(0, 1);
    tag.remove_prefix(1);
    return takeUntil(tag, quote);
  }
  return takeWord(tag, kBlanks);
}

// An attribute's value in what follows a tag's name; empty if the tag has no such attribute.
string_view attribute(string_view tag, string_view wanted) {
  while (true) {
    skip(tag, " \t\r\n\f/=");
    if (tag.empty()) return {};
    const string_view name = takeWord(tag, " \t\r\n\f/=");
    skip(tag, kBlanks);
    if (!tag.starts_with('=')) continue;
    tag.remove_prefix(1);
    skip(tag, kBlanks);
    const string_view value = takeValue(tag);
    if (equalIgnoringCase(name, wanted)) return value;
  }
}

char takeCharacter(string_view& text) {
  for (const auto& [entity, character] : kEntities) {
    if (!text.starts_with(entity)) continue;
    text.remove_prefix(entity.size());
    return character;
  }
  const char character = text.front();
  text.remove_prefix(1);
  return character;
}

std::string readable(string_view text) {
  std::string title;
  while (!text.empty()) {
    const char character = takeCharacter(text);
    const bool isBlank = kBlanks.find(character) != string_view::npos;
    if (!isBlank) title += character;
    if (isBlank && !title.empty() && title.back() != ' ') title += ' ';
  }
  if (title.ends_with(' ')) title.pop_back();
  return isUtf8(title) ? title : "";
}

struct Titles {
  std::string meta;
  std::string title;
};

// Takes one tag, which starts after its "<"; reads a title where it declares one.
void takeTag(string_view& rest, Titles& titles) {
  if (rest.starts_with("!--")) {
    takeUntil(rest, "-->");
    return;
  }
  string_view tag = takeUntil(rest, ">");
  const string_view name = takeWord(tag, " \t\r\n\f/");
  if (equalIgnoringCase(name, "meta") && equalIgnoringCase(attribute(tag, "name"), "AppleTitle")) {
    if (titles.meta.empty()) titles.meta = readable(attribute(tag, "content"));
  } else if (equalIgnoringCase(name, "title") && titles.title.empty()) {
    titles.title = readable(rest.substr(0, rest.find('<')));
  }
}

}  // namespace

OptString htmlTitle(const std::string& html) {
  Titles titles;
  string_view rest = html;
  takeUntil(rest, "<");
  while (!rest.empty()) {
    takeTag(rest, titles);
    takeUntil(rest, "<");
  }
  const std::string& title = !titles.meta.empty() ? titles.meta : titles.title;
  return !title.empty() ? OptString(title) : std::nullopt;
}

}  // namespace tavrin
