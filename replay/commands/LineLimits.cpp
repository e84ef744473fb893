#include "replay/commands/LineLimits.h"

#include <algorithm>

namespace tavrin {
namespace {

// How much a parser would make of a line: its deepest nesting, and the fields of all its objects.
struct Extent {
  int depth = 0;
  int fields = 0;
};

// Looks at signs alone, so that it can come before the parser, whose memory and time it spares.
Extent extentOf(const std::string& line) {
  Extent found;
  int depth = 0;
  bool inText = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (c == '"') inText = !inText;
    if (inText && c == '\\') ++i;
    if (inText) continue;
    if (c == '[' || c == '{') found.depth = std::max(found.depth, ++depth);
    if (c == ']' || c == '}') --depth;
    if (c == ':') ++found.fields;
  }
  return found;
}

}  // namespace

std::string brokenLimit(const std::string& line) {
  if (line.size() > kScriptLineLimit)
    return "The line is too long: a line has at most " + std::to_string(kScriptLineLimit) +
           " bytes.";
  const Extent extent = extentOf(line);
  if (extent.depth > kNestingLimit)
    return "The line is nested too deep: brackets stand at most " + std::to_string(kNestingLimit) +
           " deep in each other.";
  if (extent.fields > kFieldLimit)
    return "The line has too many fields: a line has at most " + std::to_string(kFieldLimit) + ".";
  return {};
}

}  // namespace tavrin
