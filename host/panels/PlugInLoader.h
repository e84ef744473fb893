#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/contract/PrintDialogExtension.h"
#include "platform/files/Bundle.h"
#include "platform/text/Result.h"

// From a bundle's folder to a plug-in that runs in this process.

namespace tavrin {

// The key in a bundle's Info.plist for the type of the panels that its plug-in makes; a bundle
// without it is refused.
inline constexpr char kPanelTypeKey[] = "TavrinPanelType";

// A plug-in in this process. Its code stays until the process ends, so that nothing that it made
// outlives it.
struct LoadedPlugIn {
  std::unique_ptr<const Bundle> bundle;
  std::unique_ptr<PDEPlugIn> principal;  // never null, knows its bundle
};

// Loads the plug-in of a bundle folder, runs its code and makes its principal object. Links are
// followed first; a bundle that somebody else could have changed is refused, see PlugInSafety.h.
// The reason names the bundle and what is wrong with it.
Result<LoadedPlugIn> loadPlugIn(const std::filesystem::path& bundleFolder);

}  // namespace tavrin
