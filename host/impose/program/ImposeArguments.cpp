#include "host/impose/program/ImposeArguments.h"

#include <charconv>
#include <cmath>
#include <optional>

#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

constexpr char kUsage[] =
    " Usage: tavrin-impose --look FORMAT FILE, or tavrin-impose --join TURNS application/pdf "
    "FILE..., or tavrin-impose --paper WIDTHxHEIGHT --margins LEFT,BOTTOM,RIGHT,TOP "
    "[--whole-sheets] [--turns FILE] [-o NAME=VALUE]... FORMAT FILE...";
constexpr double kLeastRoom = 1;          // points
constexpr double kLargestPaper = 14'400;  // points

Failure failure(const std::string& sentence) { return {sentence + kUsage}; }

// So many numbers with that between them; empty for anything else.
std::vector<double> numbers(const std::string& text, char between, std::size_t count) {
  std::vector<double> result;
  const char* at = text.data();
  const char* const end = at + text.size();
  while (result.size() < count) {
    double number = 0;
    const auto [next, problem] = std::from_chars(at, end, number);
    if (problem != std::errc() || !std::isfinite(number) || number < 0) return {};
    result.push_back(number);
    if (next != end && *next != between) return {};
    at = next == end ? end : next + 1;
    if (next == end) break;
  }
  return result.size() == count && at == end ? result : std::vector<double>();
}

class ArgumentReader {
 public:
  explicit ArgumentReader(const std::vector<std::string>& theArguments) : arguments(theArguments) {}

  Result<ImposeArguments> read() {
    while (at < arguments.size() && arguments[at].starts_with('-'))
      if (!readOption())
        return failure("There is something wrong with " + quoted(arguments[at]) + ".");
    if (!readDocuments()) return failure("Each document needs its format and its file.");
    if (result.look && result.documents.size() > 1)
      return failure("One document can be looked at at a time.");
    const Rect room = within(result.paper.size, result.paper.margins);
    const bool hasRoom = room.width >= kLeastRoom && room.height >= kLeastRoom;
    const bool needsPaper = !result.look && result.join.empty();
    if (needsPaper && !hasRoom) return failure("There is no paper, or no room on it.");
    return result;
  }

 private:
  bool readOption() {
    const std::string& name = arguments[at];
    if (name == "--look") return take(result.look);
    if (name == "--whole-sheets") return take(result.wholeSheets);
    if (at + 1 == arguments.size()) return false;
    const std::string& value = arguments[at + 1];
    const bool isSound = name == "--paper"     ? readPaper(value)
                         : name == "--margins" ? readMargins(value)
                         : name == "--join"    ? readJoin(value)
                         : name == "--turns"   ? readTurns(value)
                                               : name == "-o" && readJobOption(value);
    if (isSound) at += 2;
    return isSound;
  }

  bool take(bool& flag) {
    ++at;
    return flag = true;
  }

  bool readPaper(const std::string& value) {
    const auto lengths = numbers(value, 'x', 2);
    if (lengths.empty() || lengths[0] > kLargestPaper || lengths[1] > kLargestPaper) return false;
    result.paper.size = {lengths[0], lengths[1]};
    return true;
  }

  bool readMargins(const std::string& value) {
    const auto lengths = numbers(value, ',', 4);
    if (lengths.empty()) return false;
    result.paper.margins = {lengths[0], lengths[1], lengths[2], lengths[3]};
    return true;
  }

  bool readJoin(const std::string& value) {
    result.join = value;
    return !value.empty() && value.find_first_not_of("0123") == std::string::npos;
  }

  bool readTurns(const std::string& value) {
    result.turns = value;
    return !value.empty();
  }

  bool readJobOption(const std::string& value) {
    for (const auto& [name, choice] : optionsFromArgument(value))
      setOption(result.options, name, choice);
    return true;
  }

  bool readDocuments() {
    if (at == arguments.size() || (arguments.size() - at) % 2 != 0) return false;
    for (; at < arguments.size(); at += 2)
      result.documents.push_back({arguments[at], arguments[at + 1]});
    return true;
  }

  const std::vector<std::string>& arguments;
  std::size_t at = 0;
  ImposeArguments result;
};

}  // namespace

Result<ImposeArguments> imposeArguments(const std::vector<std::string>& arguments) {
  return ArgumentReader(arguments).read();
}

}  // namespace tavrin
