#include "conflict/ConflictFlags.h"
#include "conflict/InstalledCartridges.h"
#include "conflict/SelectedPaper.h"
#include "conflict/TavConflictController.h"
#include "ppd/PlugInBundle.h"

// The loop over the conflicts, and what each window shows.

namespace tavrin {
namespace {

enum MsgTwoKind { mirrorKind = 0, pagesPerSheetKind = 1 };
enum MsgFiveKind { paperSizeKind = 0, printInBlackKind = 1, cartridgeKind = 2 };

const std::string kContinue = "Continue without resolving the conflict.";
const std::string kShowInstructions = "Show instructions to resolve the conflict settings.";

// The texts that every window has, and its first choice selected.
void composeCommon(Window& window, Label& labelB, Label& labelD, Button& okButton) {
  labelB.setStringValue(localized("is not compatible with"));
  labelD.setStringValue(localized("Choose an option to resolve the conflict:"));
  okButton.setTitle(localized("OK"));
  window.setTitle(localized("Conflicting settings"));
}

void show(Label& label, const OptString& text) {
  if (text) label.setStringValue(*text);
}

}  // namespace

// --- The loop ---

void TavConflictController::processConflict() {
  const bool haveWindows = loadWindows();
  selectFirstMsgOne();
  selectFirstMsgTwo();
  selectFirstMsgFive();
  HAS_MIRROR_INSTRUCTION = false;
  HAS_PAGESPERSHEET_INSTRUCTION = false;
  HAS_PRINTINBLACK_INSTRUCTION = false;
  HAS_CARTINSTALLED_INSTRUCTION = false;
  HAS_PAPERSIZE_INSTRUCTION = false;
  if (!haveWindows) return;

  const std::weak_ptr<const bool> alive = life;
  const auto keptWhileShown = windows;
  canShowWindows = true;
  for (auto codes = validateConflict(); !codes.empty(); codes = validateConflict()) {
    showConflict(codes.front());
    if (alive.expired() || !canShowWindows) return;
  }
}

// Whether all four windows are there.
bool TavConflictController::loadWindows() {
  const auto complete = [this] {
    return ibMsgOneWindow.isConnected() && ibMsgTwoWindow.isConnected() &&
           ibMsgFiveWindow.isConnected() && ibInstructionWindow.isConnected();
  };
  if (complete()) return true;
  auto loaded = Toolkit::current().loadInterface(plugInBundle(), "Conflicts", bindings());
  if (loaded) windows.push_back(std::move(loaded));
  return complete();
}

void TavConflictController::showConflict(int code) {
  switch (code) {
    case 0:
      composeMsgOne();
      runWindow(*ibMsgOneWindow);
      break;
    case 1:
    case 2:
    case 4:
    case 5:
    case 7:
    case 9:
      HAS_PAPERSIZE_CONFLICT = true;
      composeMsgFive(paperSizeKind);
      runWindow(*ibMsgFiveWindow);
      break;
    case 3:
    case 6:
      HAS_PAGESPERSHEET_CONFLICT = true;
      composeMsgTwo(pagesPerSheetKind);
      runWindow(*ibMsgTwoWindow);
      break;
    case 8:
      HAS_PRINTINBLACK_CONFLICT = true;
      composeMsgFive(printInBlackKind);
      runWindow(*ibMsgFiveWindow);
      break;
    case 10:
      HAS_MIRROR_CONFLICT = true;
      composeMsgTwo(mirrorKind);
      runWindow(*ibMsgTwoWindow);
      break;
    case 11:
    case 12:
      HAS_CARTINSTALLED_CONFLICT = true;
      composeMsgFive(cartridgeKind);
      runWindow(*ibMsgFiveWindow);
      break;
    default:
      break;
  }
}

void TavConflictController::runWindow(Window& window) {
  const std::weak_ptr<const bool> alive = life;
  window.center();
  window.display();
  const bool stopped = Toolkit::current().runModalForWindow(window);
  if (!alive.expired() && !stopped) canShowWindows = false;
}

// --- Composing ---

void TavConflictController::composeMsgOne() {
  ibFirstButton_MsgOne->setState(1);
  ibSecondButton_MsgOne->setState(0);
  ibThirdButton_MsgOne->setState(0);
  composeCommon(*ibMsgOneWindow, *ibLabelB_MsgOne, *ibLabelD_MsgOne, *ibOkButton_MsgOne);

  ibLabelA_MsgOne->setStringValue(localized("Paper Type: Iron-On Transfer"));
  ibLabelC_MsgOne->setStringValue(localized("Print Quality: Quick Print"));
  ibLabelA_FirstButton_MsgOne->setStringValue(localized("Paper Type: Iron-On Transfer"));
  ibLabelB_FirstButton_MsgOne->setStringValue(localized("Print Quality: Normal"));
  ibLabelA_SecondButton_MsgOne->setStringValue(localized("Paper Type: Plain"));
  ibLabelB_SecondButton_MsgOne->setStringValue(localized("Print Quality: Quick Print"));
  ibLabelA_ThirdButton_MsgOne->setStringValue(localized(kContinue));
}

void TavConflictController::composeMsgTwo(int kind) {
  ibFirstButton_MsgTwo->setState(1);
  ibSecondButton_MsgTwo->setState(0);
  ibThirdButton_MsgTwo->setState(0);
  composeCommon(*ibMsgTwoWindow, *ibLabelB_MsgTwo, *ibLabelD_MsgTwo, *ibOkButton_MsgTwo);
  ibLabelA_SecondButton_MsgTwo->setStringValue(localized(kShowInstructions));
  ibLabelA_ThirdButton_MsgTwo->setStringValue(localized(kContinue));

  if (kind == mirrorKind) {
    ibLabelA_MsgTwo->setStringValue(localized("Advanced Options: Mirror (ON)"));
    ibLabelC_MsgTwo->setStringValue(paperSizeLine());
    ibLabelA_FirstButton_MsgTwo->setStringValue(localized("Advanced Options: Mirror (OFF)"));
    ibLabelB_FirstButton_MsgTwo->setStringValue(paperSizeLine());
  } else if (kind == pagesPerSheetKind) {
    ibLabelA_MsgTwo->setStringValue(localized("Layout: Pages per Sheet (>1)"));
    ibLabelC_MsgTwo->setStringValue(paperTypeLine());
    ibLabelA_FirstButton_MsgTwo->setStringValue(localized("Layout: Pages per Sheet (>1)"));
    ibLabelB_FirstButton_MsgTwo->setStringValue(localized("Paper Type: Plain"));
  }
}

void TavConflictController::composeMsgFive(int kind) {
  ibFirstButton_MsgFive->setState(1);
  ibSecondButton_MsgFive->setState(0);
  composeCommon(*ibMsgFiveWindow, *ibLabelB_MsgFive, *ibLabelD_MsgFive, *ibOkButton_MsgFive);
  ibLabelA_SecondButton_MsgFive->setStringValue(localized(kShowInstructions));

  if (kind == paperSizeKind) {
    ibLabelA_MsgFive->setStringValue(paperTypeLine());
    ibLabelC_MsgFive->setStringValue(paperSizeLine());
    ibLabelA_FirstButton_MsgFive->setStringValue(localized("Paper Type: Plain"));
    ibLabelB_FirstButton_MsgFive->setStringValue(paperSizeLine());
  } else if (kind == printInBlackKind || kind == cartridgeKind) {
    // With no cartridge to name, the lines keep what they showed.
    const OptString line = kind == printInBlackKind ? paperTypeLine() : cartridgeLine();
    show(*ibLabelA_MsgFive, line);
    ibLabelC_MsgFive->setStringValue(localized("Document Color: Black Only"));
    show(*ibLabelA_FirstButton_MsgFive, line);
    ibLabelB_FirstButton_MsgFive->setStringValue(localized("Document Color: Color"));
  }
}

std::string TavConflictController::paperTypeLine() const {
  return localized("Paper Type: ") + model->paperType().value_or("");
}

std::string TavConflictController::paperSizeLine() const {
  return localized("Paper Size: ") + SelectedPaper(mPageFormat).text(mLocalPPD);
}

OptString TavConflictController::cartridgeLine() const {
  const auto cartridges = InstalledCartridges::read(mLocalPPD);
  if (cartridges.isPhotoInstalled()) return localized("Cartridge(s) installed: Photo");
  if (cartridges.isColorOnly()) return localized("Cartridge(s) installed: Only Color");
  return std::nullopt;
}

}  // namespace tavrin
