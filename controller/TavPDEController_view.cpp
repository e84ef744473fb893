#include "controller/PanelDefaults.h"
#include "controller/TavPDEController.h"
#include "platform/toolkit/NotificationCenter.h"
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

}  // namespace tavrin
