#include "conflict/InstructionTexts.h"

#include <string>
#include <vector>

#include "conflict/TextFormat.h"
#include "ppd/PlugInBundle.h"

namespace tavrin {
namespace {

const std::string kUtilityStep = "2) Launch the Tavrin Utility";

// By InstructionKind.
const std::vector<std::string> kSteps[] = {
    {"1) If your application does not have File -> Page Setup, skip to step 7.",
     "2) Cancel the Print dialog.", "3) Select File -> Page Setup.",
     "4) From the Paper Size pop-up menu, select the desired paper size.", "5) Click OK.",
     "6) Open the Print dialog.", "7) From the Print dialog, select your desired settings.",
     "8) Click the close button in the upper left corner of this screen."},
    {"1) From the pop-up menu, choose Color options.",
     "2) From the Document Color pop-up menu, choose Color.",
     "3) Click the close button in the upper left corner of this screen."},
    {"1) From the pop-up menu, choose Layout.", "2) From the Pages per Sheet popup menu, choose 1.",
     "3) Click the close button in the upper left corner of this screen."},
    {"1) Cancel the Print dialog.", kUtilityStep,
     "3) Select the Install/ Change Cartridge... button.", "4) Install a black cartridge.",
     "5) Open the Print dialog, and then reselect your settings.",
     "6) Click the close button in the upper left corner of this screen."},
};

std::string lineOf(const std::string& step, const OptString& modelName) {
  const std::string line = localized(step);
  return step == kUtilityStep ? formatWithObject(line, modelName) : line;
}

}  // namespace

OptString instructionText(signed char kind, const OptString& modelName) {
  if (kind < pageSetUpSteps || kind > cartridgeSteps) return std::nullopt;
  const auto& steps = kSteps[kind];
  std::string text = lineOf(steps.front(), modelName);
  for (std::size_t i = 1; i < steps.size(); ++i) text += "\n" + lineOf(steps[i], modelName);
  return text;
}

}  // namespace tavrin
