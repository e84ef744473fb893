#include "controller/FirstSettings.h"

#include "ppd/PDETools.h"

namespace tavrin {
namespace {

void bindDryTime(PDEModel& model, ppd_file_t* ppd) {
  const PDETools tools;
  ppd_option_t* option = tools.getPPDOption(kDupDryTimeKey, ppd);
  switch (tools.getPPDOptionUI(kNSDupDryTimeKey, ppd)) {
    case PPD_UI_BOOLEAN:
      model.setDryTimeCheckBoxOption(option);
      break;
    case PPD_UI_PICKONE:
      model.setDryTimePopUpOption(option);
      break;
    default:
      break;
  }
}

}  // namespace

void setSupportedPPDOptionsToPDEModel(PDEModel& model, ppd_file_t* ppd) {
  for (const SettingRow& row : kSettings) {
    if (row.setting == Setting::dryTime) {
      bindDryTime(model, ppd);
    } else {
      model.bind(row.setting, PDETools().getPPDOption(row.keyword.c_str(), ppd));
    }
  }
}

void setDefaultsToPDEModel(PDEModel& model) {
  const PDETools tools;
  for (const SettingRow& row : kSettings) {
    model.choose(row.setting, tools.optionsChoice(row.defaultChoice, model.option(row.setting)));
  }
  // A check box has a default of its own, but only for the value. The ticket is the default of the
  // pop-up, which such a printer does not have: it starts absent, and gets its keyword from the
  // marked choice, the host or the user.
  if (ppd_option_t* checkBox = model.dryTimeCheckBoxOption()) {
    model.choose(Setting::dryTime,
                 {tools.getOptionsChoice(kNSDupDryTimeCheckboxDefault, checkBox, ChoicePart::text),
                  std::nullopt});
  }
}

}  // namespace tavrin
