#include "tests/randomwalk/Printer.h"

#include <algorithm>
#include <cctype>

#include "tests/fakes/FakePPD.h"

namespace tavrin::walk {
namespace {

// Our own, because std::shuffle differs between standard libraries.
template <class T>
void shuffle(Dice& dice, std::vector<T>& list) {
  for (std::size_t i = list.size(); i > 1; --i) {
    std::swap(list[i - 1], list[static_cast<std::size_t>(roll(dice, static_cast<int>(i)))]);
  }
}

std::string keywordOf(const std::string& keywordAndText) {
  return keywordAndText.substr(0, keywordAndText.find('/'));
}

// The same keyword in capitals, with its text.
std::string inCapitals(const std::string& keywordAndText) {
  std::string written = keywordAndText;
  const std::size_t end = keywordOf(written).size();
  std::transform(written.begin(), written.begin() + static_cast<std::ptrdiff_t>(end),
                 written.begin(), [](unsigned char c) { return std::toupper(c); });
  return written;
}

PPDOptionText varied(Dice& dice, PPDOptionText option) {
  if (chance(dice, 25)) shuffle(dice, option.choices);
  for (std::string& choice : option.choices) {
    if (chance(dice, 4)) choice = inCapitals(choice);
    if (chance(dice, 10)) choice = keywordOf(choice);
  }
  if (option.choices.size() > 1 && chance(dice, 15)) {
    option.choices.erase(option.choices.begin() +
                         roll(dice, static_cast<int>(option.choices.size())));
  }
  if (chance(dice, 40)) option.defaultChoice = keywordOf(oneOf(dice, option.choices));
  if (chance(dice, 3)) option.keyword = inCapitals(option.keyword);
  return option;
}

PPDOptionText dryTime(Dice& dice) {
  switch (roll(dice, 5)) {
    case 0:
    case 1:
      return dryTimePopUpOption();
    case 2:
    case 3:
      return dryTimeCheckBoxOption();
    default: {
      PPDOptionText pickMany = dryTimePopUpOption();
      pickMany.kind = "PickMany";
      return pickMany;
    }
  }
}

}  // namespace

Printer randomPrinter(Dice& dice) {
  std::vector<PPDOptionText> options = {pageSizeOption()};
  for (const PPDOptionText& option :
       {printQualityOption(), paperTypeOption(), paperSourceOption(), colorModelOption(),
        mirrorOption(), sharpeningOption(), dryTime(dice)}) {
    if (chance(dice, 92)) options.push_back(varied(dice, option));
  }
  if (chance(dice, 70)) options.push_back(tray2Option(chance(dice, 75) ? "True" : "False"));

  Printer printer;
  printer.markDefaults = chance(dice, 80);
  printer.model = oneOf<std::string>(dice, {"Tavrin P1", "Tavrin R420 Series"});
  std::vector<std::string> attributes = {"*ModelName: \"" + printer.model + "\""};
  if (chance(dice, 90)) {
    printer.year = oneOf<std::string>(dice, {"2006", "2007", "2008", "Drivers"});
    attributes.push_back("*TavDriverPath: \"/Library/Printers/Tavrin/" + *printer.year +
                         "/Driver.plugin\"");
  }
  printer.ppd = ppdText(options, attributes);
  return printer;
}

CartridgeSet randomCartridges(Dice& dice) {
  return oneOf<CartridgeSet>(dice, {{std::nullopt, std::nullopt},
                                    {"Color Standard", "Black Standard"},
                                    {"Color Standard", "Not installed"},
                                    {"Color Standard", "Photo Standard"}});
}

}  // namespace tavrin::walk
