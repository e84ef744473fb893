#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <system_error>
#include <vector>

#include "platform/files/PropertyListGuard.h"

namespace tavrin {
namespace {

// Real lists nest a handful of times.
constexpr std::size_t kDepthLimit = 32;
// About 100 bytes each in libplist, and as many here.
constexpr std::size_t kElementLimit = 65'000;
// libplist compares a new key with the ones before it, with all of them if the keys are chosen so:
// a dictionary of n keys costs n * n. This many take about 12 ms: one dictionary of 1,700 keys.
constexpr std::size_t kComparisonLimit = 3'000'000;
// libplist moves the rest of a text at each character reference in it. About 3 ms.
constexpr std::size_t kMoveLimit = 300'000'000;

using std::string_view;

// The number of elements, or more: comments count as well, so that no element can hide.
std::size_t elementCount(string_view list) {
  const auto all = std::count(list.begin(), list.end(), '<');
  std::size_t closing = 0;
  for (std::size_t at = 0; (at = list.find("</", at)) != string_view::npos; ++at) ++closing;
  return static_cast<std::size_t>(all) - closing;
}

// How many bytes libplist moves to write the characters for the references in all texts.
std::size_t moveCount(string_view list) {
  std::size_t moves = 0;
  while (!list.empty()) {
    const string_view text = list.substr(0, list.find('<'));
    moves += static_cast<std::size_t>(std::count(text.begin(), text.end(), '&')) * text.size();
    list.remove_prefix(std::min(text.size() + 1, list.size()));
  }
  return moves;
}

// Whether a character reference, without its "&#" and ";", means a character.
bool isCharacter(string_view reference) {
  const bool isHex = reference.starts_with('x');
  if (isHex) reference.remove_prefix(1);
  std::uint32_t value = 0;
  const char* end = reference.data() + reference.size();
  const auto read = std::from_chars(reference.data(), end, value, isHex ? 16 : 10);
  return read.ec == std::errc() && read.ptr == end && value > 0 && value <= 0x10FFFF;
}

// libplist ends the program over a key with a NUL inside, which only a reference can put there.
bool hasSoundReferences(string_view list) {
  constexpr std::size_t kLongest = 12;
  for (std::size_t at = 0; (at = list.find("&#", at)) != string_view::npos;) {
    at += 2;
    const string_view near = list.substr(at, kLongest);
    const std::size_t end = near.find(';');
    if (end == string_view::npos || !isCharacter(near.substr(0, end))) return false;
  }
  return true;
}

// Follows the open elements from tag to tag.
class Nesting {
 public:
  explicit Nesting(string_view list) : rest(list) {}

  bool isHarmless() {
    while (findMarkup()) {
      if (!takeMarkup()) return false;
    }
    return open.empty();
  }

 private:
  bool findMarkup();
  bool takeMarkup();
  bool skipPast(string_view end);
  bool takeTag();
  bool enter(string_view tag);
  bool leave();

  string_view rest;
  std::vector<std::size_t> open;  // the keys that each open element has so far
  std::size_t comparisons = 0;
};

bool Nesting::findMarkup() {
  rest.remove_prefix(std::min(rest.find('<'), rest.size()));
  return !rest.empty();
}

bool Nesting::takeMarkup() {
  if (rest.starts_with("<!--")) return skipPast("-->");
  if (rest.starts_with("<![CDATA[")) return skipPast("]]>");
  return takeTag();
}

bool Nesting::skipPast(string_view end) {
  const std::size_t found = rest.find(end, 4);  // "<!-->" does not end itself
  if (found == string_view::npos) return false;
  rest.remove_prefix(found + end.size());
  return true;
}

// A tag, a declaration or a processing instruction. One with a ">" in quotes is refused: no list
// needs it, and readers differ on where it ends.
bool Nesting::takeTag() {
  const std::size_t end = rest.find('>');
  if (end == string_view::npos) return false;
  const string_view tag = rest.substr(1, end - 1);
  rest.remove_prefix(end + 1);
  if (tag.empty() || std::count(tag.begin(), tag.end(), '"') % 2 != 0) return false;
  switch (tag.front()) {
    case '?':
      return tag.size() > 1 && tag.back() == '?';
    case '!':
      return tag.find('[') == string_view::npos;  // entities are declared in brackets
    case '/':
      return leave();
    default:
      return enter(tag);
  }
}

bool Nesting::enter(string_view tag) {
  const string_view name = tag.substr(0, tag.find_first_of(" \t\r\n/"));
  if (name == "key" && !open.empty()) ++open.back();
  open.push_back(0);
  return open.size() <= kDepthLimit && (tag.back() != '/' || leave());
}

bool Nesting::leave() {
  if (open.empty()) return false;
  comparisons += open.back() * open.back();
  open.pop_back();
  return comparisons <= kComparisonLimit;
}

}  // namespace

bool isHarmlessXmlList(std::string_view bytes) {
  return bytes.find('\0') == string_view::npos && elementCount(bytes) <= kElementLimit &&
         moveCount(bytes) <= kMoveLimit && hasSoundReferences(bytes) && Nesting(bytes).isHarmless();
}

}  // namespace tavrin
