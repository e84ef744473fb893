#include "tests/randomwalk/PanelUnderTest.h"

#include <set>

#include "conflict/TavConflictController.h"
#include "plugin/TavrinPDEPlugin.h"
#include "ppd/PPDKeywords.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin::walk {
namespace {

const std::set<std::string> kAdvancedControls = {
    "ibMIrror",       "ibAutoImageSharpening", "ibManualImageSharpening",
    "ibDryTimePopUp", "ibDryTimeCheckBox",     "ibManualImageSharpeningSlider"};

const std::map<std::string, std::string> kActions = {
    {"ibPrintQuality", "printQualityAction:"},
    {"ibPaperType", "paperTypeAction:"},
    {"ibPaperSource", "paperSourceAction:"},
    {"ibDryTimePopUp", "dryTimePopUpAction:"},
    {"ibBlackAndWhite", "blackAndWhiteAction:"},
    {"ibMIrror", "mirrorAction:"},
    {"ibDisclosure", "disclosureAction:"},
    {"ibAutoImageSharpening", "autoImageSharpeningAction:"},
    {"ibManualImageSharpening", "manualImageSharpeningAction:"},
    {"ibDryTimeCheckBox", "dryTimeCheckBoxAction:"},
};

// What the interface file hides until the controller shows it.
void hideOptionalControls(FakeInterface& view) {
  view.popUp("ibPaperSource").hidden = true;
  view.popUp("ibDryTimePopUp").hidden = true;
  view.button("ibDryTimeCheckBox").hidden = true;
}

}  // namespace

PanelUnderTest::PanelUnderTest(const Printer& printer, FakeToolkit& toolkit)
    : ppd(parsePPD(printer.ppd, printer.markDefaults)) {
  job.ppd = ppd.get();
  const ppd_choice_t* installed = ppdFindMarkedChoice(ppd.get(), "Tray2Option");
  tray2 = installed != nullptr && std::string(installed->choice) == "True";
  auto panels = TavrinPDEPlugin().PDEPanelsForType(kPrintDialogPanelType, &job);
  panel = std::move(panels->front());
  toolkit.onLoad = [](const std::string& name, FakeInterface& made) {
    if (name == "TavrinPDENIB") hideOptionalControls(made);
  };
  panel->panelView();
  view = toolkit.interface("TavrinPDENIB");
  panel->willShow();
  click("ibDisclosure");
}

bool PanelUnderTest::carryOut(const Step& step) {
  switch (step.verb) {
    case Step::Verb::choose:
      return choose(step.name, step.number);
    case Step::Verb::click:
      return click(step.name);
    case Step::Verb::slide:
      return slide(step.number);
    case Step::Verb::hostChange:
      panel->PPDOptionKeyValueDidChange(step.name, step.text);
      return true;
    case Step::Verb::mark:
      return mark(step.name, step.text);
    case Step::Verb::unmark:
      return unmark(step.name);
    case Step::Verb::restore:
      return panel->restoreValuesAndReturnError(nullptr);
    case Step::Verb::willShow:
      panel->willShow();
      return true;
    case Step::Verb::page:
      job.format.hasPaper = step.text.has_value();
      job.format.name = step.text;
      return true;
    case Step::Verb::columns:
      job.settings.columns = step.text;
      return true;
    case Step::Verb::reopen:
      return false;  // the walk's to do
  }
  return false;
}

bool PanelUnderTest::canBeWorked(const std::string& control, bool hidden, bool enabled) const {
  const bool collapsed = view->views.at("ibAdvancedView")->hidden;
  return !hidden && enabled && !(collapsed && kAdvancedControls.contains(control));
}

bool PanelUnderTest::choose(const std::string& popUp, int number) {
  const FakePopUpButton& control = view->popUp(popUp);
  if (control.items.empty() || !canBeWorked(popUp, control.hidden, control.enabled)) return false;
  if (number >= control.numberOfItems()) return false;
  view->choose(popUp, number, kActions.at(popUp));
  return true;
}

bool PanelUnderTest::click(const std::string& button) {
  const FakeButton& control = view->button(button);
  if (!canBeWorked(button, control.hidden, control.enabled)) return false;
  const bool radio = button.ends_with("ImageSharpening");
  radio ? view->pick(button, kActions.at(button)) : view->click(button, kActions.at(button));
  return true;
}

bool PanelUnderTest::slide(int value) {
  const std::string slider = "ibManualImageSharpeningSlider";
  if (!canBeWorked(slider, false, view->slider(slider).enabled)) return false;
  view->slide(slider, value, "imageSharpeningSliderAction:");
  return true;
}

// As a host does; a choice that the option lacks cannot be marked.
bool PanelUnderTest::mark(const std::string& key, const OptString& choice) {
  ppd_option_t* const record = option(key);
  if (record == nullptr || !choice || ppdFindChoice(record, choice->c_str()) == nullptr)
    return false;
  ppdMarkOption(ppd.get(), key.c_str(), choice->c_str());
  return true;
}

bool PanelUnderTest::unmark(const std::string& key) {
  if (option(key) == nullptr) return false;
  tavrin::unmark(*ppd, key);
  return true;
}

Settings PanelUnderTest::settings() {
  job.handedOver.clear();
  panel->saveValuesAndReturnError(nullptr);
  Settings seen;
  for (const auto& [key, choice] : job.handedOver) seen[key].ticket = choice;
  const auto summary = panel->summaryInfo();
  for (auto& [key, setting] : seen) {
    const ppd_option_t* record = option(key);
    if (record == nullptr) continue;
    const auto line =
        summary.find(key == kColorModelKey ? "Print in Black and White" : record->text);
    setting.inSummary = line != summary.end();
    if (setting.inSummary) setting.value = line->second;
  }
  return seen;
}

std::vector<int> PanelUnderTest::conflicts() {
  const Settings now = settings();
  PDEModel model;
  model.setPaperTypeTicket(now.at(kNSPaperTypeKey).ticket);
  model.setPrintQualityTicket(now.at(kNSPrintQualityKey).ticket);
  model.setBlackAndWhiteTicket(now.at(kNSColorModelKey).ticket);
  model.setMIrrorTicket(now.at(kNSMirrorKey).ticket);
  return TavConflictController::initWithSettings(&job.settings, &job.format, ppd.get(), &model)
      ->validateConflict();
}

}  // namespace tavrin::walk
