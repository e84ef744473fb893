#include "controller/PanelControls.h"

#include "controller/ControlTexts.h"
#include "controller/PanelSummary.h"
#include "ppd/PDETools.h"
#include "ppd/PPDKeywords.h"
#include "ppd/PlugInBundle.h"
#include "ppd/TVExtendedPopUpButton.h"

namespace tavrin {
namespace {

const std::string kNSAdvancedOptionsLabel = "Advanced Options";

void moveToHeight(View& view, double y) {
  const Rect frame = view.frame();
  view.setFrameOrigin(frame.x, y);
}

// Selects the item of that title; false when it was selected already.
bool select(PopUpButton& popUp, const OptString& title) {
  if (sameText(title, popUp.titleOfSelectedItem())) return false;
  popUp.selectItemWithTitle(title);
  return true;
}

void setOn(Button& box, bool on) { box.setState(on ? 1 : 0); }

// Whether a new box is on: an option that the PPD lacks has no default, which is not "off" either.
bool startsOn(const std::string& option, const std::string& off, ppd_file_t* ppd) {
  return PDETools().getOptionsDefault(option, ppd) != off;
}

}  // namespace

void PanelControls::offerOutlets(InterfaceBindings& bindings) {
  bindings.outlet("ibPrintQuality", ibPrintQuality);
  bindings.outlet("ibPrintQualityLabel", ibPrintQualityLabel);
  bindings.outlet("ibBlackAndWhite", ibBlackAndWhite);
  bindings.outlet("ibPaperType", ibPaperType);
  bindings.outlet("ibPaperTypeLabel", ibPaperTypeLabel);
  bindings.outlet("ibPaperSource", ibPaperSource);
  bindings.outlet("ibPaperSourceLabel", ibPaperSourceLabel);
  bindings.outlet("ibDisclosure", ibDisclosure);
  bindings.outlet("ibDisclosureLabel", ibDisclosureLabel);
  bindings.outlet("advancedSummaryLabel", advancedSummaryLabel);
  bindings.outlet("ibMIrror", ibMIrror);
  sharpening.offerOutlets(bindings);
  bindings.outlet("ibDryTimePopUp", ibDryTimePopUp);
  bindings.outlet("ibDryTimeCheckBox", ibDryTimeCheckBox);
  bindings.outlet("ibDryTimeLabel", ibDryTimeLabel);
}

void PanelControls::layOut() {
  if (hasPaperSourceRow) return;
  const double freedRow = ibPaperSourceLabel->frame().y;
  ibPaperSourceLabel->setHidden(true);
  ibPaperSource->setHidden(true);
  moveToHeight(*ibDisclosure, freedRow);
  moveToHeight(*ibDisclosureLabel, freedRow);
  moveToHeight(*advancedSummaryLabel, freedRow);
}

// --- First filling ---

void PanelControls::fill(ppd_file_t* ppd, StringEncoding encoding) {
  const PDETools tools;
  if (!tools.isRunningOn105OrLater()) ibDisclosure->setEnabled(false);
  addItemsFromPPD(*ibPrintQuality, ppd, kPrintQualityKey, encoding);
  addItemsFromPPD(*ibPaperType, ppd, kPaperTypeKey, encoding);
  if (showsPaperSource()) {
    ibPaperSource->setHidden(false);
    ibPaperSourceLabel->setHidden(false);
    addItemsFromPPD(*ibPaperSource, ppd, kPaperSourceKey, encoding);
  }
  setOn(*ibBlackAndWhite, startsOn(kNSColorModelKey, kNSColorModelDefault, ppd));
  setOn(*ibMIrror, startsOn(kNSMirrorKey, kNSMirrorDefault, ppd));
  sharpening.fill(tools.getOptionsDefault(kNSSharpeningKey, ppd));
  fillDryTime(ppd, encoding);
}

// At most one of the two is bound, by the kind of option that the PPD declares.
void PanelControls::fillDryTime(ppd_file_t* ppd, StringEncoding encoding) {
  if (model.dryTimePopUpOption() != nullptr) {
    addItemsFromPPD(*ibDryTimePopUp, ppd, kDupDryTimeKey, encoding);
    ibDryTimeLabel->setHidden(false);
    ibDryTimePopUp->setHidden(false);
  } else if (model.dryTimeCheckBoxOption() != nullptr) {
    setOn(*ibDryTimeCheckBox, startsOn(kNSDupDryTimeKey, kNSDupDryTimeCheckboxDefault, ppd));
    ibDryTimeCheckBox->setHidden(false);
  }
}

void PanelControls::localizeLabels() {
  ibDisclosureLabel->setStringValue(localized(kNSAdvancedOptionsLabel));
  ibBlackAndWhite->setTitle(localized(kNSPrintBlackAndWhiteLabel));
  setTextWithColon(*ibPrintQualityLabel, optionText(model.printQualityOption()));
  setTextWithColon(*ibPaperTypeLabel, optionText(model.paperTypeOption()));
  setTextWithColon(*ibPaperSourceLabel, optionText(model.paperSourceOption()));
  setTitle(*ibMIrror, optionText(model.mirrorOption()));
  sharpening.localizeLabels(model.imageSharpeningOption());
  setText(*ibDryTimeLabel, optionText(model.dryTimePopUpOption()));
  setTitle(*ibDryTimeCheckBox, optionText(model.dryTimeCheckBoxOption()));
}

// --- Following the model ---

void PanelControls::follow() {
  select(*ibPrintQuality, model.printQuality());
  if (select(*ibPaperType, model.paperType())) mirrorRule.updateMirrorValue();
  if (showsPaperSource()) select(*ibPaperSource, model.paperSource());
  setOn(*ibBlackAndWhite, model.blackAndWhiteTicket() == kNSBlack);
  // After the paper type, whose rule may have changed the mirror's ticket.
  followMirror();
  sharpening.follow(model.imageSharpeningTicket());
  followDryTime();
  sumUpAdvancedOptions();
}

void PanelControls::followMirror() {
  const std::string& shown = ibMIrror->intValue() == 1 ? kNSTrue : kNSMirrorDefault;
  if (model.mirrorTicket() == shown) return;
  mirrorRule.overruled();
  showMirror();
}

void PanelControls::showMirror() { setOn(*ibMIrror, model.mirrorTicket() == kNSTrue); }

void PanelControls::sumUpAdvancedOptions() {
  const bool areClosed = ibDisclosure->intValue() == 0;
  const std::string unusual = areClosed ? advancedSummary(model) : "";
  advancedSummaryLabel->setStringValue(unusual.empty() ? "" : "— " + unusual);
}

void PanelControls::followDryTime() {
  if (model.dryTimePopUpOption() != nullptr) {
    // Keyword against title: where the two differ the item is selected anew, which is harmless.
    if (!sameText(model.dryTimeTicket(), ibDryTimePopUp->titleOfSelectedItem())) {
      ibDryTimePopUp->selectItemWithTitle(model.dryTime());
    }
  } else if (model.dryTimeCheckBoxOption() != nullptr) {
    setOn(*ibDryTimeCheckBox, model.dryTimeTicket() == kNSTrue);
  }
}

}  // namespace tavrin
