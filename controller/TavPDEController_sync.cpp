#include "controller/PanelDefaults.h"
#include "controller/TavPDEController.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {

void TavPDEController::updatePDEModelwithMarkedChoices() {
  const auto markedText = [this](const std::string& key) {
    return pdeTools->getPPDMarkedChoice(key, mLOcPPD, false);
  };
  const auto markedKeyword = [this](const std::string& key) {
    return pdeTools->getPPDMarkedChoice(key, mLOcPPD, true);
  };
  PDEModel& model = *mPDEModel;

  // Everything is read before anything is written.
  const OptString paperType = markedText(kNSPaperTypeKey);
  const OptString printQuality = markedText(kNSPrintQualityKey);
  const OptString paperSource = markedText(kNSPaperSourceKey);
  const OptString colorModel = markedText(kNSColorModelKey);
  const OptString mirror = markedText(kNSMirrorKey);
  const OptString sharpening = markedText(kNSSharpeningKey);
  const OptString dryTime = markedText(kNSDupDryTimeKey);

  if (paperType) {
    model.setPaperType(paperType);
    model.setPaperTypeTicket(markedKeyword(kNSPaperTypeKey));
  }
  if (printQuality) {
    model.setPrintQuality(printQuality);
    model.setPrintQualityTicket(markedKeyword(kNSPrintQualityKey));
  }
  if (paperSource) {
    model.setPaperSource(paperSource);
    model.setPaperSourceTicket(markedKeyword(kNSPaperSourceKey));
  }
  if (colorModel) {
    model.setBlackAndWhite(colorModel);
    model.setBlackAndWhiteTicket(markedKeyword(kNSColorModelKey));
  }
  if (mirror) {
    model.setMirror(mirror);
    model.setMIrrorTicket(markedKeyword(kNSMirrorKey));
    isMirrorSetDuringPreset = model.mirrorTicket() == kNSTrue;
  } else {
    model.setMirror(pdeTools->getOptionsChoice(kNSMirrorDefault, model.mirrorOption(), false));
    model.setMIrrorTicket(pdeTools->getOptionsChoice(kNSMirrorDefault, model.mirrorOption(), true));
  }
  if (sharpening) {
    model.setImageSharpening(sharpening);
    model.setImageSharpeningTicket(markedKeyword(kNSSharpeningKey));
  }
  if (dryTime) {
    model.setDryTime(dryTime);
    model.setDryTimeTicket(markedKeyword(kNSDupDryTimeKey));
  }
  updateControls();
}

OptString TavPDEController::selectedItemFromIndex(long index, const char* withKey,
                                                  bool andFlag) const {
  const ppd_option_t* option = ppdFindOption(mLOcPPD, withKey);
  if (option == nullptr || index < 0 || index >= option->num_choices) return std::nullopt;
  const ppd_choice_t& choice = option->choices[index];
  return decode(andFlag ? choice.choice : choice.text, mLocEncoding);
}

}  // namespace tavrin
