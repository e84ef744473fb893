#include "conflict/ConflictFlags.h"
#include "conflict/TavConflictController.h"
#include "platform/toolkit/NotificationCenter.h"
#include "ppd/PDETools.h"
#include "ppd/PPDKeywords.h"

// OK: what the selected choice of a window does, to the model and to what is remembered.

namespace tavrin {

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
    } else if (model->paperTypeTicket() == kNSTransparency) {
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
