#include "conflict/ConflictFlags.h"
#include "conflict/TavConflictController.h"
#include "platform/NotificationCenter.h"
#include "ppd/PDETools.h"
#include "ppd/PPDKeywords.h"
#include "ppd/PlugInBundle.h"

namespace tavrin {
namespace {

enum MsgTwoKind { mirrorKind = 0, pagesPerSheetKind = 1 };
enum MsgFiveKind { paperSizeKind = 0, printInBlackKind = 1, cartridgeKind = 2 };
enum InstructionKind { pageSetUpSteps = 0, colorSteps = 1, layoutSteps = 2, cartridgeSteps = 3 };

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
  const OptString size = selectedPaperSize();
  const OptString text = PDETools().getLocalizedPaperSize(size, mLocalPPD);
  return localized("Paper Size: ") + (text ? *text : size.value_or(""));
}

OptString TavConflictController::cartridgeLine() const {
  if (isPhotoCartInstalled()) return localized("Cartridge(s) installed: Photo");
  if (isColorCartOnly()) return localized("Cartridge(s) installed: Only Color");
  return std::nullopt;
}

// --- Choice buttons ---

void TavConflictController::selectFirstMsgOne() {
  isFirstButton_MsgOneClicked = true;
  isSecondButton_MsgOneClicked = false;
  isThirdButton_MsgOneClicked = false;
}

void TavConflictController::selectFirstMsgTwo() {
  isFirstButton_MsgTwoClicked = true;
  isSecondButton_MsgTwoClicked = false;
  isThirdButton_MsgTwoClicked = false;
}

void TavConflictController::selectFirstMsgFive() {
  isFirstButton_MsgFiveClicked = true;
  isSecondButton_MsgFiveClicked = false;
}

void TavConflictController::clickFirstButton_MsgOne(Button& sender) {
  if (sender.intValue() != 1) return;
  selectFirstMsgOne();
  ibSecondButton_MsgOne->setState(0);
  ibThirdButton_MsgOne->setState(0);
}

void TavConflictController::clickSecondButton_MsgOne(Button& sender) {
  if (sender.intValue() != 1) return;
  isFirstButton_MsgOneClicked = false;
  isSecondButton_MsgOneClicked = true;
  isThirdButton_MsgOneClicked = false;
  ibFirstButton_MsgOne->setState(0);
  ibThirdButton_MsgOne->setState(0);
}

void TavConflictController::clickThirdButton_MsgOne(Button& sender) {
  if (sender.intValue() != 1) return;
  isFirstButton_MsgOneClicked = false;
  isSecondButton_MsgOneClicked = false;
  isThirdButton_MsgOneClicked = true;
  ibFirstButton_MsgOne->setState(0);
  ibSecondButton_MsgOne->setState(0);
}

void TavConflictController::clickFirstButton_MsgTwo(Button& sender) {
  if (sender.intValue() != 1) return;
  selectFirstMsgTwo();
  ibSecondButton_MsgTwo->setState(0);
  ibThirdButton_MsgTwo->setState(0);
}

void TavConflictController::clickSecondButton_MsgTwo(Button& sender) {
  if (sender.intValue() != 1) return;
  isFirstButton_MsgTwoClicked = false;
  isSecondButton_MsgTwoClicked = true;
  isThirdButton_MsgTwoClicked = false;
  ibFirstButton_MsgTwo->setState(0);
  ibThirdButton_MsgTwo->setState(0);
}

void TavConflictController::clickThirdButton_MsgTwo(Button& sender) {
  if (sender.intValue() != 1) return;
  isFirstButton_MsgTwoClicked = false;
  isSecondButton_MsgTwoClicked = false;
  isThirdButton_MsgTwoClicked = true;
  ibFirstButton_MsgTwo->setState(0);
  ibSecondButton_MsgTwo->setState(0);
}

void TavConflictController::clickFirstButton_MsgFive(Button& sender) {
  if (sender.intValue() != 1) return;
  selectFirstMsgFive();
  ibSecondButton_MsgFive->setState(0);
}

void TavConflictController::clickSecondButton_MsgFive(Button& sender) {
  if (sender.intValue() != 1) return;
  isFirstButton_MsgFiveClicked = false;
  isSecondButton_MsgFiveClicked = true;
  ibFirstButton_MsgFive->setState(0);
}

// --- OK ---

void TavConflictController::clickOkButton_MsgOne(Button&) {
  Toolkit::current().stopModal();
  ibMsgOneWindow->close();
  if (isFirstButton_MsgOneClicked) {
    setPrintQualityToChoice("Normal");
    setPaperTypeToChoice(kNSIronOn);
  } else if (isSecondButton_MsgOneClicked) {
    setPrintQualityToChoice("Draft");
    setPaperTypeToChoice("Plain");
  } else if (isThirdButton_MsgOneClicked) {
    IGNORE_IRONON_DRAFT_CONFLICT = true;
  }
  selectFirstMsgOne();
  NotificationCenter::defaultCenter().post(ConflictControllerChangeNotification,
                                           &*ibOkButton_MsgOne);
}

void TavConflictController::clickOkButton_MsgTwo(Button&) {
  Toolkit::current().stopModal();
  ibMsgTwoWindow->close();
  const std::weak_ptr<const bool> alive = life;
  if (isFirstButton_MsgTwoClicked) {
    resolveConflictsOfMsgTwo();
  } else if (isSecondButton_MsgTwoClicked) {
    showInstructionsOfMsgTwo();
  } else if (isThirdButton_MsgTwoClicked) {
    ignoreConflictsOfMsgTwo();
  }
  if (!alive.expired()) selectFirstMsgTwo();
}

void TavConflictController::resolveConflictsOfMsgTwo() {
  if (HAS_PAGESPERSHEET_CONFLICT) {
    setPaperTypeToChoice("Plain");
    HAS_PAGESPERSHEET_CONFLICT = false;
  }
  if (HAS_MIRROR_CONFLICT) {
    model->setMirror("Off");
    model->setMIrrorTicket("False");
    HAS_MIRROR_CONFLICT = false;
  }
  NotificationCenter::defaultCenter().post(ConflictControllerChangeNotification,
                                           &*ibOkButton_MsgTwo);
}

// The mirror conflict is led out of by another paper, so it gets the page set-up's steps.
void TavConflictController::showInstructionsOfMsgTwo() {
  if (HAS_MIRROR_CONFLICT) {
    composeInstructionMsg(pageSetUpSteps);
    HAS_MIRROR_INSTRUCTION = true;
    HAS_MIRROR_CONFLICT = false;
  }
  if (HAS_PAGESPERSHEET_CONFLICT) {
    composeInstructionMsg(layoutSteps);
    HAS_PAGESPERSHEET_INSTRUCTION = true;
    HAS_PAGESPERSHEET_CONFLICT = false;
  }
  runWindow(*ibInstructionWindow);
}

void TavConflictController::ignoreConflictsOfMsgTwo() {
  if (HAS_PAGESPERSHEET_CONFLICT) {
    if (model->paperTypeTicket() == kNSIronOn) {
      IGNORE_IRONON_PAGESPERSHEET_CONFLICT = true;
    } else if (model->paperTypeTicket() == "Transparency") {
      IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT = true;
    }
    HAS_PAGESPERSHEET_CONFLICT = false;
  }
  if (HAS_MIRROR_CONFLICT) {
    IGNORE_MIRROR_ENVELOPE_CONFLICT = true;
    HAS_MIRROR_CONFLICT = false;
  }
}

void TavConflictController::clickOkButton_MsgFive(Button&) {
  Toolkit::current().stopModal();
  ibMsgFiveWindow->close();
  const std::weak_ptr<const bool> alive = life;
  if (isFirstButton_MsgFiveClicked) {
    resolveConflictsOfMsgFive();
  } else if (isSecondButton_MsgFiveClicked) {
    showInstructionsOfMsgFive();
  }
  if (!alive.expired()) selectFirstMsgFive();
}

void TavConflictController::resolveConflictsOfMsgFive() {
  if (HAS_PAPERSIZE_CONFLICT) {
    setPaperTypeToChoice("Plain");
    HAS_PAPERSIZE_CONFLICT = false;
  }
  if (HAS_PRINTINBLACK_CONFLICT || HAS_CARTINSTALLED_CONFLICT) {
    setBlackAndWhiteToChoice("Color");
    HAS_PRINTINBLACK_CONFLICT = false;
    HAS_CARTINSTALLED_CONFLICT = false;
  }
  NotificationCenter::defaultCenter().post(ConflictControllerChangeNotification,
                                           &*ibOkButton_MsgFive);
}

// Each fill replaces the one before: with several conflicts the last one's steps are shown.
void TavConflictController::showInstructionsOfMsgFive() {
  if (HAS_PRINTINBLACK_CONFLICT) {
    composeInstructionMsg(colorSteps);
    HAS_PRINTINBLACK_INSTRUCTION = true;
    HAS_PRINTINBLACK_CONFLICT = false;
  }
  if (HAS_CARTINSTALLED_CONFLICT) {
    composeInstructionMsg(cartridgeSteps);
    HAS_CARTINSTALLED_INSTRUCTION = true;
    HAS_CARTINSTALLED_CONFLICT = false;
  }
  if (HAS_PAPERSIZE_CONFLICT) {
    composeInstructionMsg(pageSetUpSteps);
    HAS_PAPERSIZE_INSTRUCTION = true;
    HAS_PAPERSIZE_CONFLICT = false;
  }
  runWindow(*ibInstructionWindow);
}

void TavConflictController::windowWillClose() {
  Toolkit::current().stopModal();
  ibMsgTwoWindow->close();
}

// --- Changing the model ---

void TavConflictController::setPaperTypeToChoice(const std::string& keyword) {
  model->setPaperType(PDETools().getOptionsChoice(keyword, model->paperTypeOption(), false));
  model->setPaperTypeTicket(keyword);
}

void TavConflictController::setPrintQualityToChoice(const std::string& keyword) {
  model->setPrintQuality(PDETools().getOptionsChoice(keyword, model->printQualityOption(), false));
  model->setPrintQualityTicket(keyword);
}

void TavConflictController::setBlackAndWhiteToChoice(const std::string& keyword) {
  model->setBlackAndWhite(
      PDETools().getOptionsChoice(keyword, model->blackAndWhiteOption(), false));
  model->setBlackAndWhiteTicket(keyword);
}

}  // namespace tavrin
