#include "controller/PanelSummary.h"

#include "ppd/PDETools.h"
#include "ppd/PPDKeywords.h"
#include "ppd/PlugInBundle.h"
#include "ppd/TextEncoding.h"

namespace tavrin {
namespace {

constexpr Setting kOrder[] = {
    Setting::printQuality, Setting::blackAndWhite,   Setting::paperType, Setting::paperSource,
    Setting::mirror,       Setting::imageSharpening, Setting::dryTime};

constexpr Setting kAdvanced[] = {Setting::mirror, Setting::imageSharpening, Setting::dryTime};

// Black and white is called as on the panel; the PPD's word is the colour model's.
OptString label(Setting setting, const ppd_option_t& option) {
  return setting == Setting::blackAndWhite ? localized(kNSPrintBlackAndWhiteLabel)
                                           : decodeUTF8(option.text);
}

// The mirror's own value may be the panel's "On" or "Off", which is not one of the printer's texts.
OptString value(Setting setting, const PDEModel& model) {
  return setting == Setting::mirror
             ? PDETools().getOptionsChoice(model.mirrorTicket(), model.mirrorOption(),
                                           ChoicePart::text)
             : model.choice(setting).value;
}

// Dry time that is off has a keyword of its own for each kind of option.
bool isUsual(Setting setting, const PDEModel& model) {
  const OptString& ticket = model.choice(setting).ticket;
  return !ticket || ticket == rowOf(setting).defaultChoice ||
         (setting == Setting::dryTime && ticket == kNSDupDryTimeCheckboxDefault);
}

// What is on is called by its name alone.
std::string line(Setting setting, const ppd_option_t& option, const PDEModel& model) {
  const std::string name = label(setting, option).value_or("");
  if (model.choice(setting).ticket == kNSTrue) return name;
  return name + ": " + value(setting, model).value_or("");
}

}  // namespace

std::map<std::string, OptString> panelSummary(const PDEModel& model) {
  std::map<std::string, OptString> lines;
  for (const Setting setting : kOrder) {
    const ppd_option_t* option = model.option(setting);
    if (option == nullptr) continue;
    if (const OptString name = label(setting, *option)) lines[*name] = value(setting, model);
  }
  return lines;
}

std::string advancedSummary(const PDEModel& model) {
  std::string lines;
  for (const Setting setting : kAdvanced) {
    const ppd_option_t* option = model.option(setting);
    if (option == nullptr || isUsual(setting, model)) continue;
    lines += (lines.empty() ? "" : ", ") + line(setting, *option, model);
  }
  return lines;
}

}  // namespace tavrin
