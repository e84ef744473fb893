#include "controller/PanelDefaults.h"
#include "controller/TavPDEController.h"
#include "platform/NotificationCenter.h"
#include "ppd/PPDKeywords.h"
#include "ppd/PlugInBundle.h"
#include "ppd/TVExtendedPopUpButton.h"

namespace tavrin {
namespace {

const std::string kNSAdvancedOptionsLabel = "Advanced Options";
const std::string kNSAutoImageSharpeningLabel = "Automatic";
const std::string kNSManualImageSharpeningLabel = "Manual";

// Without a second tray the header moves down by one row, and the expanded panel is a row and its
// margin lower. The two amounts differ on purpose.
constexpr double kHeaderDrop = 35.0;
constexpr double kHeightLess = 40.0;

OptString optionText(const ppd_option_t* option) {
  return option != nullptr ? decodeUTF8(option->text) : std::nullopt;
}

// An absent text leaves the control as the interface file has it.
void setText(Label& label, const OptString& text) {
  if (text) label.setStringValue(*text);
}

void setTextWithColon(Label& label, const OptString& text) {
  if (text) label.setStringValue(*text + ":");
}

void setTitle(Button& button, const OptString& text) {
  if (text) button.setTitle(*text);
}

void moveToHeight(View& view, double y) {
  Rect frame = view.frame();
  frame.y = y;
  view.setFrame(frame);
}

}  // namespace

std::shared_ptr<View> TavPDEController::mainView() {
  if (!ibPDEView.isConnected()) {
    // A file without the root view is not loaded again: outlets may stand on its other objects.
    if (!panel)
      panel = Toolkit::current().loadInterface(plugInBundle(), "TavrinPDENIB", bindings());
    headerViewRect = ibHeaderView->frame();
    advancedViewRect = ibAdvancedView->frame();
    if (!hasTray2Support) hidePaperSourceRow();
    advancedViewRect.height += headerViewRect.height;
    displayAdvancedOptions(!pdeTools->isRunningOn105OrLater());
  }
  if (!ibPDEView.isConnected()) return nullptr;
  return {panel, &*ibPDEView};
}

// The disclosure row moves up into the freed row.
void TavPDEController::hidePaperSourceRow() {
  const double freedRow = ibPaperSourceLabel->frame().y;
  ibPaperSourceLabel->setHidden(true);
  ibPaperSource->setHidden(true);
  moveToHeight(*ibDisclosure, freedRow);
  moveToHeight(*ibDisclosureLabel, freedRow);
  headerViewRect.y -= kHeaderDrop;
  advancedViewRect.height -= kHeightLess;
  ibHeaderView->setFrame(headerViewRect);
}

void TavPDEController::displayAdvancedOptions(bool show) {
  ibAdvancedView->setHidden(!show);
  if (show) {
    ibPDEView->setFrameSize(advancedViewRect.width, advancedViewRect.height);
    ibHeaderView->setFrameOrigin(headerViewRect.x, headerViewRect.y);
  } else {
    ibPDEView->setFrameSize(headerViewRect.width, headerViewRect.height);
  }
  ibPDEView->setNeedsDisplay();
}

void TavPDEController::disclosureAction(Button& sender) {
  displayAdvancedOptions(sender.intValue() == 1);
  NotificationCenter::defaultCenter().post(PDEControllerDisclosureButtonChangedNotification,
                                           &*ibDisclosure);
}

// --- First filling ---

void TavPDEController::initializeControls() {
  if (doneInitialized) return;
  if (!pdeTools->isRunningOn105OrLater()) ibDisclosure->setEnabled(false);
  addItemsFromPPD(*ibPrintQuality, mLOcPPD, kPrintQualityKey, mLocEncoding);
  addItemsFromPPD(*ibPaperType, mLOcPPD, kPaperTypeKey, mLocEncoding);
  if (mPDEModel->paperSourceOption() != nullptr && hasTray2Support) {
    ibPaperSource->setHidden(false);
    ibPaperSourceLabel->setHidden(false);
    addItemsFromPPD(*ibPaperSource, mLOcPPD, kPaperSourceKey, mLocEncoding);
  }
  ibBlackAndWhite->setState(isDefault(kNSColorModelKey, kNSColorModelDefault) ? 0 : 1);
  ibMIrror->setState(isDefault(kNSMirrorKey, kNSMirrorDefault) ? 0 : 1);
  initializeSharpening();
  initializeDryTime();
  doneInitialized = true;
}

// An option that the PPD lacks has no default and so differs from every choice.
bool TavPDEController::isDefault(const std::string& option, const std::string& choice) const {
  return pdeTools->getOptionsDefault(option, mLOcPPD) == choice;
}

void TavPDEController::initializeSharpening() {
  const OptString amount = pdeTools->getOptionsDefault(kNSSharpeningKey, mLOcPPD);
  const bool automatic = amount == kNSSharpeningDefault;
  ibAutoImageSharpening->setState(automatic ? 1 : 0);
  ibManualImageSharpening->setState(automatic ? 0 : 1);
  ibManualImageSharpeningSlider->setEnabled(!automatic);
  if (automatic) {
    setEndLabelsColor(TextColor::grey);
  } else {
    ibManualImageSharpeningSlider->setIntValue(integerValue(amount));
  }
}

void TavPDEController::initializeDryTime() {
  if (mPDEModel->dryTimePopUpOption() == nullptr && mPDEModel->dryTimeCheckBoxOption() == nullptr) {
    return;
  }
  switch (pdeTools->getPPDOptionUI(kNSDupDryTimeKey, mLOcPPD)) {
    case PPD_UI_BOOLEAN:
      ibDryTimeCheckBox->setState(isDefault(kNSDupDryTimeKey, kNSDupDryTimeCheckboxDefault) ? 0
                                                                                            : 1);
      ibDryTimeCheckBox->setHidden(false);
      break;
    case PPD_UI_PICKONE:
      addItemsFromPPD(*ibDryTimePopUp, mLOcPPD, kDupDryTimeKey, mLocEncoding);
      ibDryTimeLabel->setHidden(false);
      ibDryTimePopUp->setHidden(false);
      break;
    default:
      break;
  }
}

// --- Labels ---

void TavPDEController::localizeLabels() {
  const PDEModel& model = *mPDEModel;
  ppd_option_t* const sharpening = model.imageSharpeningOption();

  ibDisclosureLabel->setStringValue(localized(kNSAdvancedOptionsLabel));
  ibBlackAndWhite->setTitle(localized(kNSPrintBlackAndWhiteLabel));
  setTextWithColon(*ibPrintQualityLabel, optionText(model.printQualityOption()));
  setTextWithColon(*ibPaperTypeLabel, optionText(model.paperTypeOption()));
  setTextWithColon(*ibPaperSourceLabel, optionText(model.paperSourceOption()));
  setTitle(*ibMIrror, optionText(model.mirrorOption()));
  setTextWithColon(*ibImageSharpeningLabel, optionText(sharpening));
  ibAutoImageSharpening->setTitle(localized(kNSAutoImageSharpeningLabel));
  ibManualImageSharpening->setTitle(localized(kNSManualImageSharpeningLabel));
  setText(*ibNoneLabel, pdeTools->getOptionsChoice("0", sharpening, false));
  setText(*ibMostLabel, pdeTools->getOptionsChoice("10", sharpening, false));
  // At most one of the two is bound, by the kind of option that the PPD declares.
  setText(*ibDryTimeLabel, optionText(model.dryTimePopUpOption()));
  setTitle(*ibDryTimeCheckBox, optionText(model.dryTimeCheckBoxOption()));
}

// --- Following the model ---

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
