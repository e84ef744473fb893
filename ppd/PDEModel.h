#pragma once

#include <array>
#include <cstddef>
#include <iterator>
#include <utility>

#include <cups/ppd.h>

#include "ppd/Setting.h"

namespace tavrin {

// What the panel knows of its seven settings: of each the PPD option record (borrowed from the
// PPD; null when this printer has no such option) and what it is set to. Every setting can be
// asked for by name, and by its own functions below.
//
// A passive record: whoever sets a value sets its ticket too.
class PDEModel {
 public:
  // The option of a setting; for dry time the one of the two that the printer has.
  ppd_option_t* option(Setting setting) const;
  const SettingChoice& choice(Setting setting) const { return at(setting).choice; }

  // For dry time, binds the pop-up's option.
  void bind(Setting setting, ppd_option_t* option) { at(setting).option = option; }
  void choose(Setting setting, SettingChoice choice) { at(setting).choice = std::move(choice); }

  // --- Options ---

  ppd_option_t* printQualityOption() const { return option(Setting::printQuality); }
  void setPrintQualityOption(ppd_option_t* option) { bind(Setting::printQuality, option); }
  ppd_option_t* paperTypeOption() const { return option(Setting::paperType); }
  void setPaperTypeOption(ppd_option_t* option) { bind(Setting::paperType, option); }
  ppd_option_t* paperSourceOption() const { return option(Setting::paperSource); }
  void setPaperSourceOption(ppd_option_t* option) { bind(Setting::paperSource, option); }
  ppd_option_t* blackAndWhiteOption() const { return option(Setting::blackAndWhite); }
  void setBlackAndWhiteOption(ppd_option_t* option) { bind(Setting::blackAndWhite, option); }
  ppd_option_t* imageSharpeningOption() const { return option(Setting::imageSharpening); }
  void setImageSharpeningOption(ppd_option_t* option) { bind(Setting::imageSharpening, option); }
  ppd_option_t* mirrorOption() const { return option(Setting::mirror); }
  void setMirrorOption(ppd_option_t* option) { bind(Setting::mirror, option); }
  // Dry time as a pick-one option.
  ppd_option_t* dryTimePopUpOption() const { return at(Setting::dryTime).option; }
  void setDryTimePopUpOption(ppd_option_t* option) { bind(Setting::dryTime, option); }
  // Dry time as a boolean option.
  ppd_option_t* dryTimeCheckBoxOption() const { return mDryTimeCheckBoxOption; }
  void setDryTimeCheckBoxOption(ppd_option_t* option) { mDryTimeCheckBoxOption = option; }

  // --- Values ---

  const OptString& printQuality() const { return value(Setting::printQuality); }
  void setPrintQuality(OptString text) { setValue(Setting::printQuality, std::move(text)); }
  const OptString& paperType() const { return value(Setting::paperType); }
  void setPaperType(OptString text) { setValue(Setting::paperType, std::move(text)); }
  const OptString& paperSource() const { return value(Setting::paperSource); }
  void setPaperSource(OptString text) { setValue(Setting::paperSource, std::move(text)); }
  const OptString& blackAndWhite() const { return value(Setting::blackAndWhite); }
  void setBlackAndWhite(OptString text) { setValue(Setting::blackAndWhite, std::move(text)); }
  const OptString& mirror() const { return value(Setting::mirror); }
  void setMirror(OptString text) { setValue(Setting::mirror, std::move(text)); }
  const OptString& imageSharpening() const { return value(Setting::imageSharpening); }
  void setImageSharpening(OptString text) { setValue(Setting::imageSharpening, std::move(text)); }
  const OptString& dryTime() const { return value(Setting::dryTime); }
  void setDryTime(OptString text) { setValue(Setting::dryTime, std::move(text)); }

  // --- Tickets ---

  const OptString& printQualityTicket() const { return ticket(Setting::printQuality); }
  void setPrintQualityTicket(OptString keyword) {
    setTicket(Setting::printQuality, std::move(keyword));
  }
  const OptString& paperTypeTicket() const { return ticket(Setting::paperType); }
  void setPaperTypeTicket(OptString keyword) { setTicket(Setting::paperType, std::move(keyword)); }
  const OptString& paperSourceTicket() const { return ticket(Setting::paperSource); }
  void setPaperSourceTicket(OptString keyword) {
    setTicket(Setting::paperSource, std::move(keyword));
  }
  const OptString& blackAndWhiteTicket() const { return ticket(Setting::blackAndWhite); }
  void setBlackAndWhiteTicket(OptString keyword) {
    setTicket(Setting::blackAndWhite, std::move(keyword));
  }
  const OptString& mirrorTicket() const { return ticket(Setting::mirror); }
  // The odd capital is the name that every caller knows.
  void setMIrrorTicket(OptString keyword) { setTicket(Setting::mirror, std::move(keyword)); }
  const OptString& imageSharpeningTicket() const { return ticket(Setting::imageSharpening); }
  void setImageSharpeningTicket(OptString keyword) {
    setTicket(Setting::imageSharpening, std::move(keyword));
  }
  const OptString& dryTimeTicket() const { return ticket(Setting::dryTime); }
  void setDryTimeTicket(OptString keyword) { setTicket(Setting::dryTime, std::move(keyword)); }

 private:
  struct Entry {
    ppd_option_t* option = nullptr;
    SettingChoice choice;
  };

  Entry& at(Setting setting) { return mEntries[static_cast<std::size_t>(setting)]; }
  const Entry& at(Setting setting) const { return mEntries[static_cast<std::size_t>(setting)]; }
  const OptString& value(Setting setting) const { return at(setting).choice.value; }
  void setValue(Setting setting, OptString text) { at(setting).choice.value = std::move(text); }
  const OptString& ticket(Setting setting) const { return at(setting).choice.ticket; }
  void setTicket(Setting setting, OptString keyword) {
    at(setting).choice.ticket = std::move(keyword);
  }

  std::array<Entry, std::size(kSettings)> mEntries;
  ppd_option_t* mDryTimeCheckBoxOption = nullptr;
};

inline ppd_option_t* PDEModel::option(Setting setting) const {
  ppd_option_t* option = at(setting).option;
  const bool isCheckBox = setting == Setting::dryTime && option == nullptr;
  return isCheckBox ? mDryTimeCheckBoxOption : option;
}

}  // namespace tavrin
