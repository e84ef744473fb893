#include <vector>

#include "conflict/TavConflictController.h"
#include "ppd/PDETools.h"
#include "ppd/PlugInBundle.h"

namespace tavrin {
namespace {

const std::vector<std::string> kPageSetUpSteps = {
    "1) If your application does not have File -> Page Setup, skip to step 7.",
    "2) Cancel the Print dialog.",
    "3) Select File -> Page Setup.",
    "4) From the Paper Size pop-up menu, select the desired paper size.",
    "5) Click OK.",
    "6) Open the Print dialog.",
    "7) From the Print dialog, select your desired settings.",
    "8) Click the close button in the upper left corner of this screen.",
};
const std::vector<std::string> kColorOptionsSteps = {
    "1) From the pop-up menu, choose Color options.",
    "2) From the Document Color pop-up menu, choose Color.",
    "3) Click the close button in the upper left corner of this screen.",
};
const std::vector<std::string> kLayoutSteps = {
    "1) From the pop-up menu, choose Layout.",
    "2) From the Pages per Sheet popup menu, choose 1.",
    "3) Click the close button in the upper left corner of this screen.",
};
const std::string kFirstCartridgeStep = "1) Cancel the Print dialog.";
const std::string kUtilityStep = "2) Launch the Tavrin Utility";
const std::vector<std::string> kLastCartridgeSteps = {
    "3) Select the Install/ Change Cartridge... button.",
    "4) Install a black cartridge.",
    "5) Open the Print dialog, and then reselect your settings.",
    "6) Click the close button in the upper left corner of this screen.",
};

std::string joined(const std::vector<std::string>& steps) {
  std::string text = localized(steps.front());
  for (std::size_t i = 1; i < steps.size(); ++i) text += "\n" + localized(steps[i]);
  return text;
}

// The second step may name the printer: a translation says where.
std::string stepsForCartridges(const OptString& modelName) {
  return localized(kFirstCartridgeStep) + "\n" +
         formatWithObject(localized(kUtilityStep), modelName) + "\n" + joined(kLastCartridgeSteps);
}

}  // namespace

void TavConflictController::composeInstructionMsg(signed char kind) {
  switch (kind) {
    case pageSetUpSteps:
      ibInstructionText->setStringValue(joined(kPageSetUpSteps));
      break;
    case colorSteps:
      ibInstructionText->setStringValue(joined(kColorOptionsSteps));
      break;
    case layoutSteps:
      ibInstructionText->setStringValue(joined(kLayoutSteps));
      break;
    case cartridgeSteps:
      ibInstructionText->setStringValue(stepsForCartridges(PDETools().getModelName(mLocalPPD)));
      break;
    default:
      break;
  }
  ibInstructionWindow->setTitle(localized("Instructions"));
}

std::string formatWithObject(const std::string& format, const OptString& argument) {
  static const std::string directives[] = {"%@", "%1$@", "%%"};
  std::string text;
  for (std::size_t at = 0; at < format.size();) {
    const std::string* found = nullptr;
    for (const std::string& directive : directives) {
      if (format.compare(at, directive.size(), directive) == 0) found = &directive;
    }
    if (found == nullptr) {
      text += format[at++];
      continue;
    }
    text += *found == "%%" ? "%" : argument.value_or("");
    at += found->size();
  }
  return text;
}

}  // namespace tavrin
