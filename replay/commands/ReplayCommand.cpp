#include "replay/commands/ReplayCommand.h"

#include <functional>
#include <limits>
#include <map>
#include <set>

#include "platform/text/Quoted.h"
#include "replay/commands/FieldReader.h"

namespace tavrin {
namespace {

struct Syntax {
  Verb verb;
  bool onPanel = true;
  std::vector<std::string> required = {};
  std::vector<std::string> optional = {};
};

const std::map<std::string, Syntax>& grammar() {
  static const std::map<std::string, Syntax> verbs = {
      {"initWithBundle:", {Verb::initWithBundle, false, {"bundle"}}},
      {"PDEPanelsForType:", {Verb::panelsForType, false, {"type"}}},
      {"open", {Verb::open, true, {"ppd"}, {"page", "columns", "markDefaults", "marks"}}},
      {"close", {Verb::close}},
      {"panelView", {Verb::panelView}},
      {"willShow", {Verb::willShow}},
      {"shouldHide", {Verb::shouldHide}},
      {"supportedPPDOptionKeys", {Verb::supportedKeys}},
      {"saveValuesAndReturnError:", {Verb::saveValues}},
      {"restoreValuesAndReturnError:", {Verb::restoreValues}},
      {"PPDOptionKeyValueDidChange:ppdChoice:", {Verb::optionDidChange, true, {"key", "choice"}}},
      {"summaryInfo", {Verb::summaryInfo}},
      {"shouldShowHelp", {Verb::shouldShowHelp}},
      {"mark", {Verb::mark, true, {"key", "choice"}}},
      {"unmark", {Verb::unmark, true, {"key"}}},
      {"page", {Verb::page, true, {"page"}}},
      {"columns", {Verb::columns, true, {"columns"}}},
      {"choose", {Verb::choose, true, {"control", "index"}, {"answers"}}},
      {"click", {Verb::click, true, {"control"}, {"answers"}}},
      {"slide", {Verb::slide, true, {"control", "value"}, {"answers"}}},
      {"state", {Verb::state}},
  };
  return verbs;
}

using Store = std::function<void(ReplayCommand&, const FieldReader&)>;

// Where each field goes. A null key or choice is for telling a panel only: that call of the
// protocol has them optional.
const std::map<std::string, Store>& fieldStores() {
  static const std::map<std::string, Store> stores = {
      {"panel", [](auto& to, const auto& field) { to.panel = field.text(); }},
      {"bundle", [](auto& to, const auto& field) { to.bundle = field.textOrNull(); }},
      {"type", [](auto& to, const auto& field) { to.type = field.text(); }},
      {"ppd", [](auto& to, const auto& field) { to.ppd = field.textOrNull(); }},
      {"page", [](auto& to, const auto& field) { to.page = field.textOrNull(); }},
      {"columns", [](auto& to, const auto& field) { to.columns = field.textOrNull(); }},
      {"markDefaults", [](auto& to, const auto& field) { to.markDefaults = field.truth(); }},
      {"marks", [](auto& to, const auto& field) { to.marks = field.marks(); }},
      {"key",
       [](auto& to, const auto& field) {
         to.key = to.verb == Verb::optionDidChange ? field.textOrNull() : field.text();
       }},
      {"choice",
       [](auto& to, const auto& field) {
         to.choice = to.verb == Verb::optionDidChange ? field.textOrNull() : field.text();
       }},
      {"control", [](auto& to, const auto& field) { to.control = field.text(); }},
      {"index", [](auto& to, const auto& field) { to.index = field.wholeNumber(); }},
      {"value", [](auto& to, const auto& field) { to.value = field.wholeNumber(); }},
      {"answers", [](auto& to, const auto& field) { to.answers = field.answers(); }},
  };
  return stores;
}

std::set<std::string> fieldsOf(const Syntax& syntax) {
  std::set<std::string> fields{"do"};
  if (syntax.onPanel) fields.insert("panel");
  fields.insert(syntax.required.begin(), syntax.required.end());
  fields.insert(syntax.optional.begin(), syntax.optional.end());
  return fields;
}

void checkFieldNames(const Json& line, const std::string& verb, const Syntax& syntax) {
  const std::set<std::string> known = fieldsOf(syntax);
  for (const auto& entry : line.items())
    if (!known.contains(entry.key()))
      throw SyntaxError{"The command " + quotedInShort(verb) + " has no field " +
                        quotedInShort(entry.key()) + "."};
  for (const std::string& field : syntax.required)
    if (!line.contains(field))
      throw SyntaxError{"The command " + quotedInShort(verb) + " needs the field " +
                        quotedInShort(field) + "."};
}

std::string verbOf(const Json& line) {
  if (!line.contains("do")) throw SyntaxError{"The command has no field \"do\" that names it."};
  return FieldReader("do", line["do"]).text();
}

ReplayCommand commandFrom(const Json& line) {
  const std::string verb = verbOf(line);
  const auto syntax = grammar().find(verb);
  if (syntax == grammar().end())
    throw SyntaxError{"There is no command " + quotedInShort(verb) +
                      "; --help lists the commands."};
  checkFieldNames(line, verb, syntax->second);
  ReplayCommand command;
  command.verb = syntax->second.verb;
  for (const auto& entry : line.items())
    if (entry.key() != "do")
      fieldStores().at(entry.key())(command, FieldReader(entry.key(), entry.value()));
  return command;
}

}  // namespace

std::optional<std::string> nextLine(std::istream& script) {
  std::string line;
  for (char c = 0; line.size() <= kScriptLineLimit && script.get(c);) {
    if (c == '\n') return line;
    line += c;
  }
  if (line.empty()) return std::nullopt;
  if (script) script.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
  return line;
}

Result<ReplayCommand> parseCommand(const std::string& line) {
  if (const std::string broken = brokenLimit(line); !broken.empty())
    return Failure{broken + " It begins: " + quotedInShort(line) + "."};
  const Json parsed = Json::parse(line, nullptr, /*allow_exceptions=*/false);
  // The parser takes a NUL for the end of the line.
  const bool cut = line.find('\0') != std::string::npos;
  if (cut || !parsed.is_object())
    return Failure{"The line is not a JSON object: " + quotedInShort(line) + "."};
  try {
    return commandFrom(parsed);
  } catch (const SyntaxError& error) {
    return Failure{error.sentence};
  }
}

std::vector<std::string> verbNames() {
  std::vector<std::string> names;
  for (const auto& [name, syntax] : grammar()) names.push_back(name);
  return names;
}

}  // namespace tavrin
