#include "controller/PanelDefaults.h"
#include "controller/TavPDEController.h"
#include "ppd/PPDKeywords.h"

// How the controls follow the model.

namespace tavrin {

void TavPDEController::updateControls() {
  PDEModel& model = *mPDEModel;
  const std::string shownColor = ibBlackAndWhite->intValue() == 1 ? kNSBlack : kNSColorModelDefault;
  const std::string shownMirror = ibMIrror->intValue() == 1 ? kNSTrue : kNSMirrorDefault;
  std::string shownSharpening = ibAutoImageSharpening->intValue() == 1 ? kNSSharpeningDefault : "";
  if (ibManualImageSharpening->intValue() == 1) {
    shownSharpening = std::to_string(ibManualImageSharpeningSlider->intValue());
  }

  if (!sameText(model.printQuality(), ibPrintQuality->titleOfSelectedItem())) {
    ibPrintQuality->selectItemWithTitle(model.printQuality());
  }
  if (!sameText(model.paperType(), ibPaperType->titleOfSelectedItem())) {
    ibPaperType->selectItemWithTitle(model.paperType());
    updateMirrorValue();
  }
  if (model.paperSourceOption() != nullptr && hasTray2Support &&
      !sameText(model.paperSource(), ibPaperSource->titleOfSelectedItem())) {
    ibPaperSource->selectItemWithTitle(model.paperSource());
  }
  if (model.blackAndWhiteTicket() != shownColor) {
    ibBlackAndWhite->setState(model.blackAndWhiteTicket() == kNSBlack ? 1 : 0);
  }
  // The ticket is read after the paper type's rule, which may have changed it.
  if (model.mirrorTicket() != shownMirror) {
    isMirrorManuallySet = false;
    ibMIrror->setState(model.mirrorTicket() == kNSTrue ? 1 : 0);
  }
  updateSharpening(shownSharpening);
  updateDryTime();
}

void TavPDEController::updateSharpening(const std::string& shown) {
  const OptString& ticket = mPDEModel->imageSharpeningTicket();
  if (ticket == shown) return;
  if (ticket == kNSSharpeningDefault) {
    ibAutoImageSharpening->setState(1);
    ibManualImageSharpening->setState(0);
    showAutomaticSharpening();
  } else {
    ibAutoImageSharpening->setState(0);
    ibManualImageSharpening->setState(1);
    showManualSharpening(integerValue(ticket));
  }
}

void TavPDEController::updateDryTime() {
  const OptString& ticket = mPDEModel->dryTimeTicket();
  if (mPDEModel->dryTimePopUpOption() != nullptr) {
    // Keyword against title: where the two differ the item is selected anew, which is harmless.
    if (!sameText(ticket, ibDryTimePopUp->titleOfSelectedItem())) {
      ibDryTimePopUp->selectItemWithTitle(mPDEModel->dryTime());
    }
  } else if (mPDEModel->dryTimeCheckBoxOption() != nullptr) {
    const std::string& shown =
        ibDryTimeCheckBox->intValue() == 1 ? kNSTrue : kNSDupDryTimeCheckboxDefault;
    if (ticket != shown) ibDryTimeCheckBox->setState(ticket == kNSTrue ? 1 : 0);
  }
}

// The iron-on rule for a paper type that was changed from outside the panel. Only the model
// changes.
void TavPDEController::updateMirrorValue() {
  const bool ironOn = mPDEModel->paperTypeTicket() == kNSIronOn;
  if (mPDEModel->mirrorTicket() == kNSTrue && !ironOn && !isMirrorManuallySet &&
      !isMirrorSetDuringPreset) {
    setMirrorOff();
  } else if (ironOn && mPDEModel->mirrorTicket() == kNSMirrorDefault && !isMirrorManuallySet) {
    setMirrorOn();
  }
}

void TavPDEController::showAutomaticSharpening() {
  ibManualImageSharpeningSlider->setEnabled(false);
  ibManualImageSharpeningSlider->setIntValue(0);
  setEndLabelsColor(TextColor::grey);
}

void TavPDEController::showManualSharpening(int amount) {
  ibManualImageSharpeningSlider->setEnabled(true);
  ibManualImageSharpeningSlider->setIntValue(amount);
  setEndLabelsColor(TextColor::black);
}

void TavPDEController::setEndLabelsColor(TextColor color) {
  ibNoneLabel->setTextColor(color);
  ibMostLabel->setTextColor(color);
}

}  // namespace tavrin
