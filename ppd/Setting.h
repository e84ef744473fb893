#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/text/OptionalString.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {

// What the panel lets people set.
enum class Setting {
  paperType,
  printQuality,
  paperSource,
  blackAndWhite,
  mirror,
  imageSharpening,
  dryTime
};

// What a setting is set to: one choice of its option, twice. Either may be absent.
struct SettingChoice {
  OptString value;   // the choice's text, which the panel and its summary show
  OptString ticket;  // the choice's keyword, which the job gets

  // Absent equals absent here.
  friend bool operator==(const SettingChoice&, const SettingChoice&) = default;
};

// The mirror as the panel sets it: the value is a word of its own, not the PPD's text.
inline const SettingChoice kMirrorOn = {"On", kNSTrue};
inline const SettingChoice kMirrorOff = {"Off", kNSMirrorDefault};

// Which printers of the family have a setting.
enum class Printers { all, some };

// One row of the table of settings.
struct SettingRow {
  Setting setting;
  Printers printers;
  const std::string& keyword;        // the main keyword of its option
  const std::string& defaultChoice;  // what a new panel starts with, where the option has it
};

// Every setting, in the order in which the host gets them. Dry time has two kinds of option, of
// which a printer has at most one; the default here is the pop-up's.
inline constexpr SettingRow kSettings[] = {
    {Setting::paperType, Printers::all, kNSPaperTypeKey, kNSPaperTypeDefault},
    {Setting::printQuality, Printers::all, kNSPrintQualityKey, kNSPrintQualityDefault},
    {Setting::paperSource, Printers::some, kNSPaperSourceKey, kNSPaperSourceDefault},
    {Setting::blackAndWhite, Printers::all, kNSColorModelKey, kNSColorModelDefault},
    {Setting::mirror, Printers::all, kNSMirrorKey, kNSMirrorDefault},
    {Setting::imageSharpening, Printers::all, kNSSharpeningKey, kNSSharpeningDefault},
    {Setting::dryTime, Printers::some, kNSDupDryTimeKey, kNSDupDryTimePopUpDefault},
};

// A setting is the place of its row.
consteval bool settingsAreInOrder() {
  std::size_t place = 0;
  for (const SettingRow& row : kSettings) {
    if (static_cast<std::size_t>(row.setting) != place++) return false;
  }
  return true;
}
static_assert(settingsAreInOrder());

inline const SettingRow& rowOf(Setting setting) {
  return kSettings[static_cast<std::size_t>(setting)];
}

// The setting of a PPD main keyword, which is compared to the letter; absent for any other.
std::optional<Setting> settingWithKeyword(const OptString& keyword);

}  // namespace tavrin
