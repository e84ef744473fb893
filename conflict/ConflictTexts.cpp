#include "conflict/ConflictTexts.h"

#include "conflict/InstalledCartridges.h"
#include "conflict/SelectedPaper.h"
#include "ppd/PlugInBundle.h"

namespace tavrin {
namespace {

const std::string kContinue = "Continue without resolving the conflict.";
const std::string kShowInstructions = "Show instructions to resolve the conflict settings.";

}  // namespace

void ConflictTexts::fillMsgOne(ConflictWindow& window) const {
  const std::string ironOn = localized("Paper Type: Iron-On Transfer");
  const std::string quickPrint = localized("Print Quality: Quick Print");
  window.showCommonTexts();
  window.showClash(ironOn, quickPrint);
  window.showChoice(firstChoice, {ironOn, localized("Print Quality: Normal")});
  window.showChoice(secondChoice, {localized("Paper Type: Plain"), quickPrint});
  window.showChoice(thirdChoice, {localized(kContinue)});
}

void ConflictTexts::fillMsgTwo(ConflictWindow& window, int kind) const {
  window.showCommonTexts();
  window.showChoice(secondChoice, {localized(kShowInstructions)});
  window.showChoice(thirdChoice, {localized(kContinue)});
  if (kind == kMirroredEnvelope.numberInWindow) {
    const std::string size = paperSizeLine();
    window.showClash(localized("Advanced Options: Mirror (ON)"), size);
    window.showChoice(firstChoice, {localized("Advanced Options: Mirror (OFF)"), size});
  } else if (kind == kPagesPerSheet.numberInWindow) {
    const std::string layout = localized("Layout: Pages per Sheet (>1)");
    window.showClash(layout, paperTypeLine());
    window.showChoice(firstChoice, {layout, localized("Paper Type: Plain")});
  }
}

void ConflictTexts::fillMsgFive(ConflictWindow& window, int kind) const {
  window.showCommonTexts();
  window.showChoice(secondChoice, {localized(kShowInstructions)});
  if (kind == kPaperSize.numberInWindow) {
    const std::string size = paperSizeLine();
    window.showClash(paperTypeLine(), size);
    window.showChoice(firstChoice, {localized("Paper Type: Plain"), size});
  } else if (kind == kPrintInBlack.numberInWindow || kind == kCartridges.numberInWindow) {
    const OptString line = kind == kPrintInBlack.numberInWindow ? paperTypeLine() : cartridgeLine();
    window.showClash(line, localized("Document Color: Black Only"));
    window.showChoice(firstChoice, {line, localized("Document Color: Color")});
  }
}

std::string ConflictTexts::paperTypeLine() const {
  return localized("Paper Type: ") + model.paperType().value_or("");
}

std::string ConflictTexts::paperSizeLine() const {
  return localized("Paper Size: ") + SelectedPaper(format).text(ppd);
}

OptString ConflictTexts::cartridgeLine() const {
  const auto cartridges = InstalledCartridges::read(ppd);
  if (cartridges.isPhotoInstalled()) return localized("Cartridge(s) installed: Photo");
  if (cartridges.isColorOnly()) return localized("Cartridge(s) installed: Only Color");
  return std::nullopt;
}

}  // namespace tavrin
