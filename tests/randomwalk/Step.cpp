#include "tests/randomwalk/Step.h"

namespace tavrin::walk {
namespace {

using Verb = Step::Verb;

const std::vector<std::string> kKeys = {"PrintQuality", "MediaType",  "PaperSource", "ColorModel",
                                        "Mirror",       "Sharpening", "DupDryTime"};

// Choices that a host may name: those of the family, some of them written otherwise, and strays.
const std::vector<std::string>& choicesOf(const std::string& key) {
  static const std::vector<std::string> qualities = {"Draft", "Draft", "Normal", "Automatic",
                                                     "Best",  "draft", "Photo"};
  static const std::vector<std::string> papers = {"IronOn",      "IronOn",   "Transparency",
                                                  "PhotoGlossy", "Greeting", "Plain",
                                                  "Automatic",   "ironon",   "Linen"};
  static const std::vector<std::string> sources = {"Tray1", "Tray2", "Tray9"};
  static const std::vector<std::string> colors = {"Color", "Black", "Black", "black", "Gray"};
  static const std::vector<std::string> switches = {"True", "False", "True", "true", "Perhaps"};
  static const std::vector<std::string> amounts = {"Automatic", "0", "5", "10", "77", "-3", "much"};
  static const std::vector<std::string> dryTimes = {"Automatic", "Long", "Extra", "True", "False"};
  if (key == "PrintQuality") return qualities;
  if (key == "MediaType") return papers;
  if (key == "PaperSource") return sources;
  if (key == "ColorModel") return colors;
  if (key == "Mirror") return switches;
  if (key == "Sharpening") return amounts;
  return dryTimes;
}

std::vector<Answer> randomAnswers(Dice& dice) {
  std::vector<Answer> answers(static_cast<std::size_t>(roll(dice, 6)));
  for (Answer& answer : answers) {
    for (int clicks = roll(dice, 3); clicks > 0; --clicks) {
      answer.choices.push_back(1 + roll(dice, 3));
    }
    if (chance(dice, 20)) answer.end = Answer::End::close;
  }
  if (!answers.empty() && chance(dice, 1)) answers.back().end = Answer::End::programEnds;
  return answers;
}

Step userStep(Dice& dice) {
  static const std::vector<std::string> popUps = {"ibPaperType",   "ibPaperType",
                                                  "ibPaperType",   "ibPrintQuality",
                                                  "ibPaperSource", "ibDryTimePopUp"};
  static const std::vector<std::string> buttons = {
      "ibBlackAndWhite",       "ibBlackAndWhite",         "ibMIrror",          "ibMIrror",
      "ibAutoImageSharpening", "ibManualImageSharpening", "ibDryTimeCheckBox", "ibDisclosure"};
  const int kind = roll(dice, 20);
  if (kind == 0) return {Verb::slide, 0, "ibManualImageSharpeningSlider", roll(dice, 11), {}, {}};
  if (kind < 9) return {Verb::click, 0, oneOf(dice, buttons), 0, {}, {}};
  return {Verb::choose, 0, oneOf(dice, popUps), roll(dice, 12), {}, {}};
}

Step jobStep(Dice& dice) {
  static const std::vector<OptString> pages = {
      "A4",       "A4",        "B5",        "ISOB5",      "Env10", "EnvDL",     "EnvelopeDL",
      "EnvChou3", "BannerBA4", "BannerBA4", "EnvelopeBA", "",      std::nullopt};
  static const std::vector<OptString> columns = {"2", "2", "10", "1", "x", std::nullopt};
  if (chance(dice, 60)) return {Verb::page, 0, {}, 0, oneOf(dice, pages), {}};
  return {Verb::columns, 0, {}, 0, oneOf(dice, columns), {}};
}

Step hostStep(Dice& dice) {
  const std::string& key = oneOf(dice, kKeys);
  const OptString choice = oneOf(dice, choicesOf(key));
  switch (roll(dice, 12)) {
    case 0:
    case 1:
    case 2:
      return {Verb::hostChange, 0, key, 0, choice, {}};
    case 3:
      if (chance(dice, 50)) return {Verb::hostChange, 0, key, 0, std::nullopt, {}};
      return {Verb::hostChange, 0, "PageSize", 0, "A4", {}};
    case 4:
    case 5:
    case 6:
    case 7:
      return {Verb::mark, 0, key, 0, choice, {}};
    case 8:
      return {Verb::unmark, 0, key, 0, {}, {}};
    case 9:
    case 10:
      return {Verb::restore, 0, {}, 0, {}, {}};
    default:
      return {chance(dice, 20) ? Verb::reopen : Verb::willShow, 0, {}, 0, {}, {}};
  }
}

// --- JSON ---

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

std::vector<Step> randomSteps(Dice& dice, int count, int panels) {
  std::vector<Step> steps;
  for (int i = 0; i < count; ++i) {
    const int kind = roll(dice, 10);
    Step step = kind < 5 ? userStep(dice) : kind < 7 ? jobStep(dice) : hostStep(dice);
    step.panel = roll(dice, panels);
    step.answers = randomAnswers(dice);
    steps.push_back(std::move(step));
  }
  return steps;
}

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
