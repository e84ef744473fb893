#include "controller/SharpeningControls.h"

#include "controller/ControlTexts.h"
#include "ppd/PDETools.h"
#include "ppd/PPDKeywords.h"
#include "ppd/PlugInBundle.h"

namespace tavrin {
namespace {

const std::string kNSAutoImageSharpeningLabel = "Automatic";
const std::string kNSManualImageSharpeningLabel = "Manual";

}  // namespace

void SharpeningControls::offerOutlets(InterfaceBindings& bindings) {
  bindings.outlet("ibImageSharpeningLabel", ibImageSharpeningLabel);
  bindings.outlet("ibAutoImageSharpening", ibAutoImageSharpening);
  bindings.outlet("ibManualImageSharpening", ibManualImageSharpening);
  bindings.outlet("ibManualImageSharpeningSlider", ibManualImageSharpeningSlider);
  bindings.outlet("ibNoneLabel", ibNoneLabel);
  bindings.outlet("ibMostLabel", ibMostLabel);
}

// The slider of an automatic default and the ends' colour of a manual one stay as the interface
// file has them.
void SharpeningControls::fill(const OptString& defaultChoice) {
  const bool automatic = defaultChoice == kNSSharpeningDefault;
  setButtons(automatic);
  if (automatic) {
    setEndLabelsColor(TextColor::grey);
  } else {
    ibManualImageSharpeningSlider->setIntValue(integerValue(defaultChoice));
  }
}

void SharpeningControls::localizeLabels(ppd_option_t* option) {
  const PDETools tools;
  setTextWithColon(*ibImageSharpeningLabel, optionText(option));
  ibAutoImageSharpening->setTitle(localized(kNSAutoImageSharpeningLabel));
  ibManualImageSharpening->setTitle(localized(kNSManualImageSharpeningLabel));
  setText(*ibNoneLabel, tools.getOptionsChoice("0", option, ChoicePart::text));
  setText(*ibMostLabel, tools.getOptionsChoice("10", option, ChoicePart::text));
}

void SharpeningControls::follow(const OptString& ticket) {
  if (ticket == shownTicket()) return;
  if (ticket == kNSSharpeningDefault) {
    showAutomatic();
  } else {
    showManual(integerValue(ticket));
  }
}

// What the controls say; empty when neither button is on, and the slider wins when both are.
std::string SharpeningControls::shownTicket() const {
  if (ibManualImageSharpening->intValue() == 1) {
    return std::to_string(ibManualImageSharpeningSlider->intValue());
  }
  return ibAutoImageSharpening->intValue() == 1 ? kNSSharpeningDefault : "";
}

void SharpeningControls::showAutomatic() {
  setButtons(true);
  ibManualImageSharpeningSlider->setIntValue(0);
  setEndLabelsColor(TextColor::grey);
}

void SharpeningControls::showManual(int amount) {
  setButtons(false);
  ibManualImageSharpeningSlider->setIntValue(amount);
  setEndLabelsColor(TextColor::black);
}

void SharpeningControls::setButtons(bool automatic) {
  ibAutoImageSharpening->setState(automatic ? 1 : 0);
  ibManualImageSharpening->setState(automatic ? 0 : 1);
  ibManualImageSharpeningSlider->setEnabled(!automatic);
}

void SharpeningControls::setEndLabelsColor(TextColor color) {
  ibNoneLabel->setTextColor(color);
  ibMostLabel->setTextColor(color);
}

}  // namespace tavrin
