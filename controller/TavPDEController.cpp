#include "controller/TavPDEController.h"

#include "controller/FirstSettings.h"
#include "controller/PanelSummary.h"
#include "controller/PrinterHelp.h"
#include "platform/toolkit/NotificationCenter.h"
#include "ppd/PPDKeywords.h"
#include "ppd/PlugInBundle.h"

namespace tavrin {
namespace {

// The order in which the panel claims its settings.
constexpr Setting kClaimed[] = {
    Setting::printQuality,  Setting::paperType,       Setting::paperSource, Setting::dryTime,
    Setting::blackAndWhite, Setting::imageSharpening, Setting::mirror};

// The choices of sharpening: the automatic one, then the amounts 0 to 10.
constexpr long kAutomaticSharpening = 0;
constexpr long kFirstAmountOfSharpening = 1;

}  // namespace

std::unique_ptr<TavPDEController> TavPDEController::initializeWithPPD(
    ppd_file_t* ppd, StringEncoding encoding, const PMPrintSettings* printSetting,
    const PMPageFormat* andPageFormat) {
  return std::unique_ptr<TavPDEController>(
      new TavPDEController(ppd, encoding, printSetting, andPageFormat));
}

TavPDEController::TavPDEController(ppd_file_t* ppd, StringEncoding encoding,
                                   const PMPrintSettings* settings, const PMPageFormat* format)
    : mLOcPPD(ppd),
      mLocEncoding(encoding),
      hasTray2Support(pdeTools.getPPDMarkedChoice(kNSTray2OptionKey, ppd, ChoicePart::keyword) ==
                      kNSTrue) {
  setSupportedPPDOptionsToPDEModel(mPDEModel, mLOcPPD);
  setDefaultsToPDEModel(mPDEModel);
  conflictController =
      TavConflictController::initWithSettings(settings, format, mLOcPPD, &mPDEModel);
  NotificationCenter::defaultCenter().addObserver(this, ConflictControllerChangeNotification,
                                                  [this](const void*) { updateControls(); });
}

TavPDEController::~TavPDEController() {
  NotificationCenter::defaultCenter().removeObserver(this);
  if (panel) panel->detach();
}

std::vector<std::string> TavPDEController::supportedOptions() const {
  std::vector<std::string> keywords;
  for (const Setting setting : kClaimed) {
    if (mPDEModel.option(setting) != nullptr) keywords.push_back(rowOf(setting).keyword);
  }
  return keywords;
}

// --- The PPD's choices ---

void TavPDEController::updatePDEModelwithMarkedChoices() {
  for (const SettingRow& row : kSettings) {
    const SettingChoice marked = pdeTools.markedChoice(row.keyword, mLOcPPD);
    // A choice whose text cannot be read counts as unmarked. The mirror alone does not stay as it
    // is without a mark: its rule sets it back.
    if (row.setting == Setting::mirror) {
      mirrorRule.takeMarked(marked);
    } else if (marked.value) {
      mPDEModel.choose(row.setting, marked);
    }
  }
  updateControls();
}

OptString TavPDEController::selectedItemFromIndex(long index, const char* withKey,
                                                  bool andFlag) const {
  const SettingChoice choice =
      pdeTools.choiceAt(index, pdeTools.getPPDOption(withKey, mLOcPPD), mLocEncoding);
  return choicePart(andFlag) == ChoicePart::keyword ? choice.ticket : choice.value;
}

// --- The panel ---

std::shared_ptr<View> TavPDEController::mainView() {
  if (!panel) {
    panel = Toolkit::current().loadInterface(plugInBundle(), "TavrinPDENIB", bindings());
    if (!panel) return nullptr;
    controls.layOut();
    view.layOut(hasTray2Support);
    displayAdvancedOptions(!pdeTools.isRunningOn105OrLater());
  }
  return view.root() != nullptr ? std::shared_ptr<View>(panel, view.root()) : nullptr;
}

void TavPDEController::initializeControls() {
  if (!doneInitialized) controls.fill(mLOcPPD, mLocEncoding);
  doneInitialized = true;
}

InterfaceBindings TavPDEController::bindings() {
  InterfaceBindings offered;
  view.offerOutlets(offered);
  controls.offerOutlets(offered);
  offerActions(offered);
  return offered;
}

void TavPDEController::offerActions(InterfaceBindings& offered) {
  const auto offer = [&]<class Sender>(const char* selector,
                                       void (TavPDEController::*action)(Sender&)) {
    offered.action<Sender>(selector, [this, action](Sender& sender) { (this->*action)(sender); });
  };
  offer("disclosureAction:", &TavPDEController::disclosureAction);
  offer("printQualityAction:", &TavPDEController::printQualityAction);
  offer("paperTypeAction:", &TavPDEController::paperTypeAction);
  offer("paperSourceAction:", &TavPDEController::paperSourceAction);
  offer("dryTimePopUpAction:", &TavPDEController::dryTimePopUpAction);
  offer("blackAndWhiteAction:", &TavPDEController::blackAndWhiteAction);
  offer("mirrorAction:", &TavPDEController::mirrorAction);
  offer("imageSharpeningSliderAction:", &TavPDEController::imageSharpeningSliderAction);
  offer("manualImageSharpeningAction:", &TavPDEController::manualImageSharpeningAction);
  offer("autoImageSharpeningAction:", &TavPDEController::autoImageSharpeningAction);
  offer("dryTimeCheckBoxAction:", &TavPDEController::dryTimeCheckBoxAction);
}

// --- Actions ---

// Sets the setting to the choice at a position of its option.
void TavPDEController::choose(Setting setting, long index) {
  ppd_option_t* option = pdeTools.getPPDOption(rowOf(setting).keyword.c_str(), mLOcPPD);
  mPDEModel.choose(setting, pdeTools.choiceAt(index, option, mLocEncoding));
}

void TavPDEController::disclosureAction(Button& sender) {
  displayAdvancedOptions(sender.intValue() == 1);
  controls.sumUpAdvancedOptions();
  NotificationCenter::defaultCenter().post(PDEControllerDisclosureButtonChangedNotification,
                                           &controls.disclosure());
}

void TavPDEController::printQualityAction(PopUpButton& sender) {
  choose(Setting::printQuality, sender.indexOfSelectedItem());
  conflictController->processConflict();
}

void TavPDEController::paperTypeAction(PopUpButton& sender) {
  choose(Setting::paperType, sender.indexOfSelectedItem());
  if (mirrorRule.paperTypeChosen()) controls.showMirror();
  controls.sumUpAdvancedOptions();
  conflictController->processConflict();
}

void TavPDEController::paperSourceAction(PopUpButton& sender) {
  choose(Setting::paperSource, sender.indexOfSelectedItem());
}

void TavPDEController::dryTimePopUpAction(PopUpButton& sender) {
  choose(Setting::dryTime, sender.indexOfSelectedItem());
}

void TavPDEController::blackAndWhiteAction(Button& sender) {
  // The printers list the colour choice first and the black one second.
  choose(Setting::blackAndWhite, sender.intValue());
  conflictController->processConflict();
}

void TavPDEController::mirrorAction(Button& sender) {
  mirrorRule.switchedByHand(sender.intValue() == 1);
  conflictController->processConflict();
}

void TavPDEController::imageSharpeningSliderAction(Slider& sender) {
  choose(Setting::imageSharpening, kFirstAmountOfSharpening + sender.intValue());
}

void TavPDEController::manualImageSharpeningAction(Button& sender) {
  if (sender.intValue() != 1) return;
  choose(Setting::imageSharpening, kFirstAmountOfSharpening);
  controls.imageSharpening().showManual(0);
}

void TavPDEController::autoImageSharpeningAction(Button& sender) {
  if (sender.intValue() != 1) return;
  choose(Setting::imageSharpening, kAutomaticSharpening);
  controls.imageSharpening().showAutomatic();
}

void TavPDEController::dryTimeCheckBoxAction(Button& sender) {
  const std::string& keyword = sender.intValue() == 1 ? kNSTrue : kNSDupDryTimeCheckboxDefault;
  mPDEModel.choose(Setting::dryTime,
                   pdeTools.optionsChoice(keyword, mPDEModel.dryTimeCheckBoxOption()));
}

// --- Summary and help ---

std::map<std::string, OptString> TavPDEController::infoForSummaryPanel() const {
  return panelSummary(mPDEModel);
}

bool TavPDEController::shouldShowDefaultHelp() const {
  return !PrinterHelp(mLOcPPD, mLocEncoding).open();
}

}  // namespace tavrin
