#include "plugin/MainPDE.h"

#include <filesystem>
#include <system_error>

#include "platform/files/RootFolder.h"
#include "platform/toolkit/HelpViewer.h"
#include "platform/toolkit/NotificationCenter.h"
#include "ppd/PDETools.h"
#include "ppd/PPDKeywords.h"
#include "ppd/PlugInBundle.h"

namespace tavrin {
namespace {

const std::string kPanelKind = "com.tavrin.print.pde.TavrinPDEKind";
const std::string kPanelNameKey = "Print Settings";
const std::string kDriversFolder = "Drivers";
constexpr int kFirstYearWithDriverBundle = 2007;

// Which attribute leads to the printer's help: older models keep it in a path of its own.
const std::string& helpAttribute(const OptString& modelYear) {
  if (modelYear == kDriversFolder) return CUPS_DRIVER_KEY;
  return integerValue(modelYear) < kFirstYearWithDriverBundle ? HELP_KEY : CUPS_DRIVER_KEY;
}

bool somethingIsAt(const std::string& path) {
  std::error_code failure;
  const std::filesystem::path place = pathBelowRoot(path);
  return !place.empty() && std::filesystem::exists(place, failure);
}

}  // namespace

std::unique_ptr<MainPDE> MainPDE::initWithCallback(PDEPlugInCallback* callback) {
  if (callback == nullptr) return nullptr;
  return std::unique_ptr<MainPDE>(new MainPDE(callback));
}

MainPDE::MainPDE(PDEPlugInCallback* callback)
    : mPDEPluginCallbackObject(callback), mPDEBundle(plugInBundle()) {
  const PDETools tools;
  if (tools.isRunningOn105OrLater()) {
    mPPD = mPDEPluginCallbackObject->ppdFile();
  } else {
    ppdDOnTiger();
  }
  mEncoding = tools.getEncodingFromPPD(mPPD);
  registerObserver();
  registerHelpBook();
  const PMPageFormat* pageFormat = mPDEPluginCallbackObject->pageFormat();
  const PMPrintSettings* printSettings = mPDEPluginCallbackObject->printSettings();
  mPDEController = TavPDEController::initializeWithPPD(mPPD, mEncoding, printSettings, pageFormat);
}

MainPDE::~MainPDE() {
  view.reset();
  mPDEController.reset();
  NotificationCenter::defaultCenter().removeObserver(this);
}

void MainPDE::registerObserver() {
  NotificationCenter::defaultCenter().addObserver(this,
                                                  PDEControllerDisclosureButtonChangedNotification,
                                                  [this](const void*) { panelViewIsResized(); });
}

void MainPDE::registerHelpBook() {
  const PDETools tools;
  const OptString path =
      tools.getComponentPath(helpAttribute(tools.getModelYear(mPPD)), mPPD, mEncoding);
  if (path && somethingIsAt(*path)) HelpViewer::current().registerHelpBook(*path);
}

std::string MainPDE::panelKind() { return kPanelKind; }

std::string MainPDE::panelName() {
  if (!mPDEName) mPDEName = mPDEBundle.localizedString(kPanelNameKey);
  return *mPDEName;
}

std::shared_ptr<View> MainPDE::panelView() {
  view = mPDEController->mainView();
  return view;
}

void MainPDE::willShow() {
  mPDEController->initializeControls();
  mPDEController->localizeLabels();
  mPDEController->updateControls();
}

bool MainPDE::shouldHide() { return true; }

bool MainPDE::saveValuesAndReturnError(std::string*) {
  if (PDETools().isRunningOn105OrLater()) {
    changePPDOptionKeyValue();
  } else {
    setprintSettingsToTicket();
  }
  return true;
}

bool MainPDE::restoreValuesAndReturnError(std::string*) {
  if (PDETools().isRunningOn105OrLater()) {
    mPDEController->updatePDEModelwithMarkedChoices();
  } else {
    setPrintSettingsOnTiger();
  }
  return true;
}

std::vector<std::string> MainPDE::supportedPPDOptionKeys() {
  return mPDEController->supportedOptions();
}

void MainPDE::PPDOptionKeyValueDidChange(const OptString& key, const OptString& ppdChoice) {
  PDEModel& model = mPDEController->pdeModel();
  const auto text = [&ppdChoice](ppd_option_t* option) {
    return PDETools().getOptionsChoice(ppdChoice, option, false);
  };

  if (key == kNSPaperTypeKey) {
    model.setPaperTypeTicket(ppdChoice);
    model.setPaperType(text(model.paperTypeOption()));
  } else if (key == kNSPrintQualityKey) {
    model.setPrintQualityTicket(ppdChoice);
    model.setPrintQuality(text(model.printQualityOption()));
  } else if (key == kNSPaperSourceKey) {
    model.setPaperSourceTicket(ppdChoice);
    model.setPaperSource(text(model.paperSourceOption()));
  } else if (key == kNSColorModelKey) {
    model.setBlackAndWhiteTicket(ppdChoice);
    model.setBlackAndWhite(text(model.blackAndWhiteOption()));
  } else if (key == kNSMirrorKey) {
    model.setMIrrorTicket(ppdChoice);
    model.setMirror(text(model.mirrorOption()));
  } else if (key == kNSSharpeningKey) {
    model.setImageSharpeningTicket(ppdChoice);
    model.setImageSharpening(text(model.imageSharpeningOption()));
  } else if (key == kNSDupDryTimeKey) {
    ppd_option_t* popUp = model.dryTimePopUpOption();
    ppd_option_t* option = popUp != nullptr ? popUp : model.dryTimeCheckBoxOption();
    if (option != nullptr) {
      model.setDryTimeTicket(ppdChoice);
      model.setDryTime(text(option));
    }
  }
  mPDEController->updateControls();
}

void MainPDE::changePPDOptionKeyValue() {
  const PDEModel& model = mPDEController->pdeModel();
  PDEPlugInCallback& host = *mPDEPluginCallbackObject;
  const bool hasDryTime =
      model.dryTimePopUpOption() != nullptr || model.dryTimeCheckBoxOption() != nullptr;

  // Only some printers of the family have a second paper source or a dry time; the other five
  // settings are handed over whatever they hold.
  host.willChangePPDOptionKeyValue(kNSPaperTypeKey, model.paperTypeTicket());
  host.willChangePPDOptionKeyValue(kNSPrintQualityKey, model.printQualityTicket());
  if (model.paperSourceOption() != nullptr) {
    host.willChangePPDOptionKeyValue(kNSPaperSourceKey, model.paperSourceTicket());
  }
  host.willChangePPDOptionKeyValue(kNSColorModelKey, model.blackAndWhiteTicket());
  host.willChangePPDOptionKeyValue(kNSMirrorKey, model.mirrorTicket());
  host.willChangePPDOptionKeyValue(kNSSharpeningKey, model.imageSharpeningTicket());
  if (hasDryTime) host.willChangePPDOptionKeyValue(kNSDupDryTimeKey, model.dryTimeTicket());
}

void MainPDE::panelViewIsResized() { mPDEPluginCallbackObject->panelViewDidResize(); }

std::map<std::string, OptString> MainPDE::summaryInfo() {
  return mPDEController->infoForSummaryPanel();
}

bool MainPDE::shouldShowHelp() { return mPDEController->shouldShowDefaultHelp(); }

}  // namespace tavrin
