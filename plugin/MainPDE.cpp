#include "plugin/MainPDE.h"

#include "controller/PrinterHelp.h"
#include "platform/toolkit/NotificationCenter.h"
#include "ppd/PDETools.h"
#include "ppd/PlugInBundle.h"
#include "ppd/Setting.h"

namespace tavrin {
namespace {

const std::string kPanelKind = "com.tavrin.print.pde.TavrinPDEKind";
const std::string kPanelNameKey = "Print Settings";

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
  PrinterHelp(mPPD, mEncoding).registerBook();
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
  const auto setting = settingWithKeyword(key);
  // The ticket is kept even where the printer lacks the option; dry time is the one exception.
  if (setting && (setting != Setting::dryTime || model.option(*setting) != nullptr)) {
    const OptString text =
        PDETools().getOptionsChoice(ppdChoice, model.option(*setting), ChoicePart::text);
    model.choose(*setting, {text, ppdChoice});
  }
  mPDEController->updateControls();
}

// What every printer of the family has is handed over whatever it holds; the rest where this
// printer has it.
void MainPDE::changePPDOptionKeyValue() {
  const PDEModel& model = mPDEController->pdeModel();
  for (const SettingRow& row : kSettings) {
    if (row.printers == Printers::some && model.option(row.setting) == nullptr) continue;
    mPDEPluginCallbackObject->willChangePPDOptionKeyValue(row.keyword,
                                                          model.choice(row.setting).ticket);
  }
}

void MainPDE::panelViewIsResized() { mPDEPluginCallbackObject->panelViewDidResize(); }

std::map<std::string, OptString> MainPDE::summaryInfo() {
  return mPDEController->infoForSummaryPanel();
}

bool MainPDE::shouldShowHelp() { return mPDEController->shouldShowDefaultHelp(); }

}  // namespace tavrin
