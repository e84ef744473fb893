#include "conflict/InstalledCartridges.h"

#include <string>

#include "platform/files/PropertyList.h"
#include "platform/files/RootFolder.h"
#include "ppd/PDETools.h"

namespace tavrin {
namespace {

const std::string kPreferencesPrefix = "/Library/Printers/Tavrin/Preferences/com.tavrin.prefs.";

}  // namespace

InstalledCartridges InstalledCartridges::read(ppd_file_t* ppd) {
  const PDETools tools;
  const OptString modelName = tools.getModelName(ppd);
  const OptString year = tools.getModelYear(ppd);
  if (!modelName || !year) return {};
  const auto preferences = readPropertyList(pathBelowRoot(kPreferencesPrefix + *year + ".plist"));
  if (!preferences) return {};
  const auto nameIn = [&](const char* slot) {
    return preferences->stringAt({*modelName, "Current", slot, "CartName"});
  };
  return {nameIn("Cart1"), nameIn("Cart2")};
}

}  // namespace tavrin
