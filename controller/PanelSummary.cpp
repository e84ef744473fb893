#include "controller/PanelSummary.h"

#include "ppd/PDETools.h"
#include "ppd/PlugInBundle.h"
#include "ppd/TextEncoding.h"

namespace tavrin {
namespace {

constexpr Setting kOrder[] = {
    Setting::printQuality, Setting::blackAndWhite,   Setting::paperType, Setting::paperSource,
    Setting::mirror,       Setting::imageSharpening, Setting::dryTime};

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

}  // namespace tavrin
