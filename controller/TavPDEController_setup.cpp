#include "controller/PanelDefaults.h"
#include "controller/TavPDEController.h"
#include "platform/toolkit/NotificationCenter.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {

std::unique_ptr<TavPDEController> TavPDEController::initializeWithPPD(
    ppd_file_t* ppd, StringEncoding encoding, const PMPrintSettings* printSetting,
    const PMPageFormat* andPageFormat) {
  return std::unique_ptr<TavPDEController>(
      new TavPDEController(ppd, encoding, printSetting, andPageFormat));
}

TavPDEController::TavPDEController(ppd_file_t* ppd, StringEncoding encoding,
                                   const PMPrintSettings* settings, const PMPageFormat* format)
    : mPDEModel(std::make_unique<PDEModel>()),
      pdeTools(std::make_unique<PDETools>()),
      mLOcPPD(ppd),
      mLocEncoding(encoding),
      mPrintSetting(settings),
      mPageFormat(format) {
  setSupportedPPDOptionsToPDEModel();
  setDefaultsToPDEModel();
  hasTray2Support = pdeTools->getPPDMarkedChoice(kNSTray2OptionKey, mLOcPPD, true) == kNSTrue;
  conflictController =
      TavConflictController::initWithSettings(mPrintSetting, mPageFormat, mLOcPPD, mPDEModel.get());
  NotificationCenter::defaultCenter().addObserver(this, ConflictControllerChangeNotification,
                                                  [this](const void*) { updateControls(); });
}

TavPDEController::~TavPDEController() {
  NotificationCenter::defaultCenter().removeObserver(this);
  if (panel) panel->detach();
}

void TavPDEController::setSupportedPPDOptionsToPDEModel() {
  mPDEModel->setPrintQualityOption(pdeTools->getPPDOption(kPrintQualityKey, mLOcPPD));
  mPDEModel->setPaperTypeOption(pdeTools->getPPDOption(kPaperTypeKey, mLOcPPD));
  mPDEModel->setPaperSourceOption(pdeTools->getPPDOption(kPaperSourceKey, mLOcPPD));
  mPDEModel->setBlackAndWhiteOption(pdeTools->getPPDOption(kColorModelKey, mLOcPPD));
  mPDEModel->setImageSharpeningOption(pdeTools->getPPDOption(kSharpeningKey, mLOcPPD));
  mPDEModel->setMirrorOption(pdeTools->getPPDOption(kMirrorKey, mLOcPPD));
  bindDryTime();
}

void TavPDEController::bindDryTime() {
  switch (pdeTools->getPPDOptionUI(kNSDupDryTimeKey, mLOcPPD)) {
    case PPD_UI_BOOLEAN:
      mPDEModel->setDryTimeCheckBoxOption(pdeTools->getPPDOption(kDupDryTimeKey, mLOcPPD));
      break;
    case PPD_UI_PICKONE:
      mPDEModel->setDryTimePopUpOption(pdeTools->getPPDOption(kDupDryTimeKey, mLOcPPD));
      break;
    default:
      break;
  }
}

void TavPDEController::setDefaultsToPDEModel() {
  const auto text = [this](const std::string& choice, ppd_option_t* option) {
    return pdeTools->getOptionsChoice(choice, option, false);
  };
  const auto keyword = [this](const std::string& choice, ppd_option_t* option) {
    return pdeTools->getOptionsChoice(choice, option, true);
  };
  PDEModel& model = *mPDEModel;

  model.setPrintQuality(text(kNSPrintQualityDefault, model.printQualityOption()));
  model.setPrintQualityTicket(keyword(kNSPrintQualityDefault, model.printQualityOption()));
  model.setPaperType(text(kNSPaperTypeDefault, model.paperTypeOption()));
  model.setPaperTypeTicket(keyword(kNSPaperTypeDefault, model.paperTypeOption()));
  if (model.paperSourceOption() != nullptr) {
    model.setPaperSource(text(kNSPaperSourceDefault, model.paperSourceOption()));
    model.setPaperSourceTicket(keyword(kNSPaperSourceDefault, model.paperSourceOption()));
  }
  model.setBlackAndWhite(text(kNSColorModelDefault, model.blackAndWhiteOption()));
  model.setBlackAndWhiteTicket(keyword(kNSColorModelDefault, model.blackAndWhiteOption()));
  model.setMirror(text(kNSMirrorDefault, model.mirrorOption()));
  model.setMIrrorTicket(keyword(kNSMirrorDefault, model.mirrorOption()));
  model.setImageSharpening(text(kNSSharpeningDefault, model.imageSharpeningOption()));
  model.setImageSharpeningTicket(keyword(kNSSharpeningDefault, model.imageSharpeningOption()));
  if (model.dryTimePopUpOption() != nullptr) {
    model.setDryTime(text(kNSDupDryTimePopUpDefault, model.dryTimePopUpOption()));
    model.setDryTimeTicket(keyword(kNSDupDryTimePopUpDefault, model.dryTimePopUpOption()));
  }
  if (model.dryTimeCheckBoxOption() != nullptr) {
    model.setDryTime(text(kNSDupDryTimeCheckboxDefault, model.dryTimeCheckBoxOption()));
    // The ticket is the pop-up's, which such a printer does not have: it starts absent, and gets
    // its keyword from the marked choice, the host or the user.
    model.setDryTimeTicket(keyword(kNSDupDryTimePopUpDefault, model.dryTimePopUpOption()));
  }
}

std::vector<std::string> TavPDEController::supportedOptions() const {
  const struct {
    const ppd_option_t* option;
    const std::string& keyword;
  } settings[] = {
      {mPDEModel->printQualityOption(), kNSPrintQualityKey},
      {mPDEModel->paperTypeOption(), kNSPaperTypeKey},
      {mPDEModel->paperSourceOption(), kNSPaperSourceKey},
      {mPDEModel->dryTimePopUpOption(), kNSDupDryTimeKey},
      {mPDEModel->dryTimeCheckBoxOption(), kNSDupDryTimeKey},
      {mPDEModel->blackAndWhiteOption(), kNSColorModelKey},
      {mPDEModel->imageSharpeningOption(), kNSSharpeningKey},
      {mPDEModel->mirrorOption(), kNSMirrorKey},
  };
  std::vector<std::string> keywords;
  for (const auto& setting : settings) {
    if (setting.option != nullptr) keywords.push_back(setting.keyword);
  }
  return keywords;
}

}  // namespace tavrin
