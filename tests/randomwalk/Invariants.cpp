#include "tests/randomwalk/Invariants.h"

#include "ppd/PPDKeywords.h"

namespace tavrin::walk {
namespace {

std::string shown(const OptString& text) { return text ? "'" + *text + "'" : "absent"; }

OptString textOf(ppd_option_t* option, const OptString& keyword) {
  if (option == nullptr || !keyword) return std::nullopt;
  const ppd_choice_t* choice = ppdFindChoice(option, keyword->c_str());
  return choice != nullptr ? OptString(choice->text) : std::nullopt;
}

bool isCheckBox(const ppd_option_t* option) { return option->ui == PPD_UI_BOOLEAN; }

// A check-box dry time starts with a value and no ticket.
bool isUntouchedDryTime(const std::string& key, ppd_option_t* option, const Setting& setting) {
  return key == kDupDryTimeKey && isCheckBox(option) && !setting.ticket &&
         setting.value == textOf(option, "False");
}

std::string orderFault(const PanelUnderTest& panel) {
  std::vector<std::string> expected = {kPaperTypeKey, kPrintQualityKey};
  if (panel.option(kPaperSourceKey) != nullptr) expected.emplace_back(kPaperSourceKey);
  expected.insert(expected.end(), {kColorModelKey, kMirrorKey, kSharpeningKey});
  const ppd_option_t* dryTime = panel.option(kDupDryTimeKey);
  if (dryTime != nullptr && dryTime->ui != PPD_UI_PICKMANY) expected.emplace_back(kDupDryTimeKey);
  std::vector<std::string> keys;
  for (const auto& [key, choice] : panel.host().handedOver) keys.push_back(key);
  return keys == expected ? "" : "the settings are not handed over in order";
}

std::string popUpFault(PanelUnderTest& panel, const std::string& name, const Setting& setting) {
  FakePopUpButton& popUp = panel.controls().popUp(name);
  const OptString title = popUp.titleOfSelectedItem();
  bool listed = false;
  for (const auto& item : popUp.items) listed = listed || item.title == setting.value;
  const OptString expected = listed ? setting.value : std::nullopt;
  if (!setting.inSummary || title == expected) return {};
  return name + " shows " + shown(title) + " for the value " + shown(setting.value);
}

std::string boxFault(PanelUnderTest& panel, const std::string& name, const OptString& ticket,
                     const std::string& onTicket) {
  const int state = panel.controls().button(name).state;
  if (state == (ticket == onTicket ? 1 : 0)) return {};
  return name + " is " + (state == 1 ? "on" : "off") + " for the ticket " + shown(ticket);
}

std::string sharpeningFault(PanelUnderTest& panel, const OptString& ticket) {
  FakeInterface& controls = panel.controls();
  const bool automatic = ticket == "Automatic";
  const FakeSlider& slider = controls.slider("ibManualImageSharpeningSlider");
  const bool grey = controls.label("ibNoneLabel").color == TextColor::grey;
  const bool grey2 = controls.label("ibMostLabel").color == TextColor::grey;
  const int amount = automatic ? 0 : std::clamp(integerValue(ticket), slider.min, slider.max);
  const bool agree = controls.button("ibAutoImageSharpening").state == (automatic ? 1 : 0) &&
                     controls.button("ibManualImageSharpening").state == (automatic ? 0 : 1) &&
                     slider.enabled != automatic && grey == automatic && grey2 == automatic &&
                     slider.value == amount;
  return agree ? "" : "the sharpening controls do not show the ticket " + shown(ticket);
}

std::string dryTimeFault(PanelUnderTest& panel, const Setting& setting) {
  if (isCheckBox(panel.option(kDupDryTimeKey))) {
    return boxFault(panel, "ibDryTimeCheckBox", setting.ticket, "True");
  }
  return popUpFault(panel, "ibDryTimePopUp", setting);
}

std::string itemsFaultOf(PanelUnderTest& panel, const std::string& name, const std::string& key,
                         bool filled) {
  const ppd_option_t* option = panel.option(key);
  const int expected = option != nullptr && filled ? option->num_choices : 0;
  const FakePopUpButton& popUp = panel.controls().popUp(name);
  if (popUp.numberOfItems() != expected) return name + " does not hold the choices once";
  for (int i = 0; i < expected; ++i) {
    if (popUp.itemValue(i) != option->choices[i].choice) return name + " has another order";
  }
  return {};
}

}  // namespace

std::string settingsFault(PanelUnderTest& panel) {
  for (const auto& [key, setting] : panel.settings()) {
    ppd_option_t* option = panel.option(key);
    if (setting.inSummary != (option != nullptr)) return key + " is in the summary by mistake";
    if (option == nullptr || isUntouchedDryTime(key, option, setting)) continue;
    if (setting.value != textOf(option, setting.ticket)) {
      return key + " has the value " + shown(setting.value) + " and the ticket " +
             shown(setting.ticket);
    }
  }
  return orderFault(panel);
}

std::string controlsFault(PanelUnderTest& panel) {
  const Settings now = panel.settings();
  std::vector<std::string> faults = {
      popUpFault(panel, "ibPrintQuality", now.at(kPrintQualityKey)),
      popUpFault(panel, "ibPaperType", now.at(kPaperTypeKey)),
      boxFault(panel, "ibBlackAndWhite", now.at(kColorModelKey).ticket, "Black"),
      boxFault(panel, "ibMIrror", now.at(kMirrorKey).ticket, "True"),
      sharpeningFault(panel, now.at(kSharpeningKey).ticket)};
  if (now.contains(kPaperSourceKey) && panel.hasTray2()) {
    faults.push_back(popUpFault(panel, "ibPaperSource", now.at(kPaperSourceKey)));
  }
  if (now.contains(kDupDryTimeKey)) faults.push_back(dryTimeFault(panel, now.at(kDupDryTimeKey)));
  for (const std::string& fault : faults) {
    if (!fault.empty()) return fault;
  }
  return {};
}

std::string itemsFault(PanelUnderTest& panel) {
  const ppd_option_t* dryTime = panel.option(kDupDryTimeKey);
  const bool dryTimePopUp = dryTime != nullptr && dryTime->ui == PPD_UI_PICKONE;
  for (const std::string& fault :
       {itemsFaultOf(panel, "ibPrintQuality", kPrintQualityKey, true),
        itemsFaultOf(panel, "ibPaperType", kPaperTypeKey, true),
        itemsFaultOf(panel, "ibPaperSource", kPaperSourceKey, panel.hasTray2()),
        itemsFaultOf(panel, "ibDryTimePopUp", kDupDryTimeKey, dryTimePopUp)}) {
    if (!fault.empty()) return fault;
  }
  return {};
}

}  // namespace tavrin::walk
