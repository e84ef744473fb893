#include "tests/randomwalk/ReplayLines.h"

namespace tavrin::walk {
namespace {

using Verb = Step::Verb;

std::string quoted(const std::string& text) {
  std::string json = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') json += '\\';
    json += c;
  }
  return json + "\"";
}

std::string orNull(const OptString& text) { return text ? quoted(*text) : "null"; }

std::string answersField(const std::vector<Answer>& used) {
  std::string list;
  for (const Answer& answer : used) {
    // A program that ends is a script without a further answer.
    if (answer.end == Answer::End::programEnds) break;
    if (!list.empty()) list += ", ";
    std::string choices;
    for (const int choice : answer.choices) {
      choices += (choices.empty() ? "" : ", ") + std::to_string(choice);
    }
    list += "{";
    if (!choices.empty()) list += "\"choose\": [" + choices + "], ";
    list += answer.end == Answer::End::ok ? "\"end\": \"ok\"}" : "\"end\": \"close\"}";
  }
  return list.empty() ? "" : ", \"answers\": [" + list + "]";
}

std::string line(const std::string& verb, int panel, const std::string& fields) {
  return "{\"do\": " + quoted(verb) + ", \"panel\": \"" + std::to_string(panel + 1) + "\"" +
         fields + "}\n";
}

}  // namespace

std::string openingLines(int panel, bool markDefaults) {
  return line("open", panel,
              ", \"ppd\": \"printer-" + std::to_string(panel + 1) +
                  ".ppd\", \"page\": \"A4\", \"markDefaults\": " +
                  (markDefaults ? "true" : "false")) +
         line("panelView", panel, "") + line("willShow", panel, "") +
         line("click", panel, ", \"control\": \"ibDisclosure\"");
}

std::string savingLine(int panel) { return line("saveValuesAndReturnError:", panel, ""); }

std::string ticketLine(int panel, const std::string& key, const OptString& ticket) {
  return "{\"panel\": \"" + std::to_string(panel + 1) + "\", \"key\": " + quoted(key) +
         ", \"choice\": " + orNull(ticket) + "}\n";
}

std::string replayLines(const Step& step, const std::vector<Answer>& used) {
  const std::string control = ", \"control\": " + quoted(step.name);
  const std::string key = ", \"key\": " + quoted(step.name);
  const std::string choice = key + ", \"choice\": " + orNull(step.text);
  switch (step.verb) {
    case Verb::choose:
      return line("choose", step.panel,
                  control + ", \"index\": " + std::to_string(step.number) + answersField(used));
    case Verb::click:
      return line("click", step.panel, control + answersField(used));
    case Verb::slide:
      return line("slide", step.panel, control + ", \"value\": " + std::to_string(step.number));
    case Verb::hostChange:
      return line("PPDOptionKeyValueDidChange:ppdChoice:", step.panel, choice);
    case Verb::mark:
      return line("mark", step.panel, choice);
    case Verb::unmark:
      return line("unmark", step.panel, key);
    case Verb::restore:
      return line("restoreValuesAndReturnError:", step.panel, "");
    case Verb::willShow:
      return line("willShow", step.panel, "");
    case Verb::page:
      return line("page", step.panel, ", \"page\": " + orNull(step.text));
    case Verb::columns:
      return line("columns", step.panel, ", \"columns\": " + orNull(step.text));
    case Verb::reopen:
      return line("close", step.panel, "");
  }
  return {};
}

}  // namespace tavrin::walk
