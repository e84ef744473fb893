#include "tests/randomwalk/Step.h"

namespace tavrin::walk {
namespace {

using Verb = Step::Verb;

const std::vector<std::string> kKeys = {"PrintQuality", "MediaType",  "PaperSource", "ColorModel",
                                        "Mirror",       "Sharpening", "DupDryTime"};

// Choices that a host may name: those of the family, some of them spelled differently, and strays.
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

}  // namespace tavrin::walk
