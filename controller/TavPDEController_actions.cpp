#include "controller/PanelDefaults.h"
#include "controller/TavPDEController.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {

void TavPDEController::printQualityAction(PopUpButton& sender) {
  const int index = sender.indexOfSelectedItem();
  mPDEModel->setPrintQuality(selectedItemFromIndex(index, kPrintQualityKey, false));
  mPDEModel->setPrintQualityTicket(selectedItemFromIndex(index, kPrintQualityKey, true));
  conflictController->processConflict();
}

void TavPDEController::paperTypeAction(PopUpButton& sender) {
  const int index = sender.indexOfSelectedItem();
  mPDEModel->setPaperType(selectedItemFromIndex(index, kPaperTypeKey, false));
  mPDEModel->setPaperTypeTicket(selectedItemFromIndex(index, kPaperTypeKey, true));

  // Iron-on paper is printed mirrored, any other paper is not, unless the user or the job's
  // settings switched the mirror on.
  if (!isMirrorManuallySet) {
    if (mPDEModel->paperTypeTicket() == kNSIronOn) {
      setMirrorOn();
      ibMIrror->setState(1);
    } else if (!isMirrorSetDuringPreset) {
      setMirrorOff();
      ibMIrror->setState(0);
    }
  }
  conflictController->processConflict();
}

void TavPDEController::paperSourceAction(PopUpButton& sender) {
  const int index = sender.indexOfSelectedItem();
  mPDEModel->setPaperSource(selectedItemFromIndex(index, kPaperSourceKey, false));
  mPDEModel->setPaperSourceTicket(selectedItemFromIndex(index, kPaperSourceKey, true));
}

void TavPDEController::dryTimePopUpAction(PopUpButton& sender) {
  const int index = sender.indexOfSelectedItem();
  mPDEModel->setDryTime(selectedItemFromIndex(index, kDupDryTimeKey, false));
  mPDEModel->setDryTimeTicket(selectedItemFromIndex(index, kDupDryTimeKey, true));
}

void TavPDEController::blackAndWhiteAction(Button& sender) {
  // The printers list the colour choice first and the black one second.
  const int index = sender.intValue();
  mPDEModel->setBlackAndWhite(selectedItemFromIndex(index, kColorModelKey, false));
  mPDEModel->setBlackAndWhiteTicket(selectedItemFromIndex(index, kColorModelKey, true));
  conflictController->processConflict();
}

void TavPDEController::mirrorAction(Button& sender) {
  isMirrorSetDuringPreset = false;
  isMirrorManuallySet = sender.intValue() == 1;
  if (isMirrorManuallySet) {
    setMirrorOn();
  } else {
    setMirrorOff();
  }
  conflictController->processConflict();
}

void TavPDEController::setMirrorOn() {
  mPDEModel->setMirror("On");
  mPDEModel->setMIrrorTicket(kNSTrue);
}

void TavPDEController::setMirrorOff() {
  mPDEModel->setMirror("Off");
  mPDEModel->setMIrrorTicket(kNSMirrorDefault);
}

// --- Sharpening: choice 0 is automatic, choices 1 to 11 are the amounts 0 to 10 ---

void TavPDEController::imageSharpeningSliderAction(Slider& sender) {
  storeImageSharpening(sender.intValue() + 1L);
}

void TavPDEController::manualImageSharpeningAction(Button& sender) {
  if (sender.intValue() != 1) return;
  storeImageSharpening(1);
  ibAutoImageSharpening->setState(0);
  showManualSharpening(0);
}

void TavPDEController::autoImageSharpeningAction(Button& sender) {
  if (sender.intValue() != 1) return;
  storeImageSharpening(0);
  ibManualImageSharpening->setState(0);
  showAutomaticSharpening();
}

void TavPDEController::storeImageSharpening(long index) {
  mPDEModel->setImageSharpening(selectedItemFromIndex(index, kSharpeningKey, false));
  mPDEModel->setImageSharpeningTicket(selectedItemFromIndex(index, kSharpeningKey, true));
}

void TavPDEController::dryTimeCheckBoxAction(Button& sender) {
  const std::string& keyword = sender.intValue() == 1 ? kNSTrue : kNSDupDryTimeCheckboxDefault;
  ppd_option_t* option = mPDEModel->dryTimeCheckBoxOption();
  mPDEModel->setDryTime(pdeTools->getOptionsChoice(keyword, option, false));
  mPDEModel->setDryTimeTicket(pdeTools->getOptionsChoice(keyword, option, true));
}

}  // namespace tavrin
