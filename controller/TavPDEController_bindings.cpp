#include "controller/TavPDEController.h"

// What the interface file "TavrinPDENIB" finds in its owner.

namespace tavrin {

InterfaceBindings TavPDEController::bindings() {
  InterfaceBindings offered;
  offered.outlet("ibPDEView", ibPDEView);
  offered.outlet("ibAdvancedView", ibAdvancedView);
  offered.outlet("ibHeaderView", ibHeaderView);
  offered.outlet("ibPrintQuality", ibPrintQuality);
  offered.outlet("ibPrintQualityLabel", ibPrintQualityLabel);
  offered.outlet("ibBlackAndWhite", ibBlackAndWhite);
  offered.outlet("ibPaperType", ibPaperType);
  offered.outlet("ibPaperTypeLabel", ibPaperTypeLabel);
  offered.outlet("ibPaperSource", ibPaperSource);
  offered.outlet("ibPaperSourceLabel", ibPaperSourceLabel);
  offered.outlet("ibDisclosure", ibDisclosure);
  offered.outlet("ibDisclosureLabel", ibDisclosureLabel);
  offered.outlet("ibMIrror", ibMIrror);
  offered.outlet("ibImageSharpeningLabel", ibImageSharpeningLabel);
  offered.outlet("ibAutoImageSharpening", ibAutoImageSharpening);
  offered.outlet("ibManualImageSharpening", ibManualImageSharpening);
  offered.outlet("ibManualImageSharpeningSlider", ibManualImageSharpeningSlider);
  offered.outlet("ibNoneLabel", ibNoneLabel);
  offered.outlet("ibMostLabel", ibMostLabel);
  offered.outlet("ibDryTimePopUp", ibDryTimePopUp);
  offered.outlet("ibDryTimeCheckBox", ibDryTimeCheckBox);
  offered.outlet("ibDryTimeLabel", ibDryTimeLabel);

  const auto popUp = [&](const char* selector, void (TavPDEController::*action)(PopUpButton&)) {
    offered.action<PopUpButton>(selector, [this, action](PopUpButton& s) { (this->*action)(s); });
  };
  const auto button = [&](const char* selector, void (TavPDEController::*action)(Button&)) {
    offered.action<Button>(selector, [this, action](Button& s) { (this->*action)(s); });
  };
  popUp("printQualityAction:", &TavPDEController::printQualityAction);
  popUp("paperTypeAction:", &TavPDEController::paperTypeAction);
  popUp("paperSourceAction:", &TavPDEController::paperSourceAction);
  popUp("dryTimePopUpAction:", &TavPDEController::dryTimePopUpAction);
  button("blackAndWhiteAction:", &TavPDEController::blackAndWhiteAction);
  button("mirrorAction:", &TavPDEController::mirrorAction);
  button("manualImageSharpeningAction:", &TavPDEController::manualImageSharpeningAction);
  button("autoImageSharpeningAction:", &TavPDEController::autoImageSharpeningAction);
  button("dryTimeCheckBoxAction:", &TavPDEController::dryTimeCheckBoxAction);
  button("disclosureAction:", &TavPDEController::disclosureAction);
  offered.action<Slider>("imageSharpeningSliderAction:",
                         [this](Slider& s) { imageSharpeningSliderAction(s); });
  return offered;
}

}  // namespace tavrin
