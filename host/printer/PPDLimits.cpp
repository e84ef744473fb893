#include "host/printer/PPDLimits.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <vector>

#include "platform/text/IgnoringCase.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

// The main keyword of a line that counts, with its asterisk; empty for another line.
std::string_view statementIn(std::string_view line) {
  constexpr std::array<std::string_view, 3> kUncounted{"*End", "*UIConstraints",
                                                       "*NonUIConstraints"};
  if (!line.starts_with('*') || line.starts_with("*%")) return {};
  const std::string_view keyword = line.substr(0, line.find_first_of(" \t:/"));
  return std::ranges::find(kUncounted, keyword) == kUncounted.end() ? keyword : "";
}

class StatementTally {
 public:
  // The limit that is broken with this line.
  std::string add(std::string_view line) {
    const std::string keyword(statementIn(line));
    if (keyword.empty()) return {};
    if (++all > kPPDStatementLimit) return tooMany(kPPDStatementLimit, "statements");
    if (++ofKeyword[keyword] > kPPDKeywordLimit)
      return tooMany(kPPDKeywordLimit, "statements " + quotedInShort(keyword));
    return {};
  }

 private:
  static std::string tooMany(std::size_t limit, const std::string& what) {
    return "has more than " + std::to_string(limit) + " " + what +
           ", which would take too long to read";
  }

  std::size_t all = 0;
  std::map<std::string, std::size_t, LessIgnoringCase> ofKeyword;
};

}  // namespace

std::string brokenPPDLimit(cups_file_t& text, std::string& lines) {
  std::vector<char> line(1 << 16);
  StatementTally tally;
  while (cupsFileGets(&text, line.data(), line.size())) {
    if (static_cast<std::size_t>(cupsFileTell(&text)) > kPPDTextLimit)
      return "unpacks to more than " + std::to_string(kPPDTextLimit >> 20) + " MiB";
    lines.append(line.data()).append("\n");
    if (std::string broken = tally.add(line.data()); !broken.empty()) return broken;
  }
  return {};
}

}  // namespace tavrin
