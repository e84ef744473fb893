#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/text/OptionalString.h"
#include "platform/text/Result.h"

struct ppd_file_s;

// Which plug-in a printer's dialog gets. A PPD only names one. Where plug-ins lie is not for a
// printer's file to say, as it could then choose any code on the machine for the program to run.

namespace tavrin {

// The bundle that this project makes.
inline constexpr char kOwnPlugInName[] = "TavrinPrintSettings.plugin";

// What the PPD's "APDialogExtension" says, as it stands; absent when the PPD is null or has none.
OptString dialogExtension(ppd_file_s* ppd);

// The folders with plug-ins that this program may load, in the order in which they are searched:
// beside the program ("../lib/tavrin" from the folder that it is in), then the user's own,
// "tavrin/plugins" in the user's data folder. They need not exist.
std::vector<std::filesystem::path> trustedPlugInFolders();

// The bundle folder for a path such as a PPD gives. Only the path's last component counts, which
// must be a plain name ending in ".plugin"; it is looked for in these folders alone. The reason
// says that it is not such a name, or where the bundle was looked for.
Result<std::filesystem::path> findPlugIn(
    const std::string& extension,
    const std::vector<std::filesystem::path>& folders = trustedPlugInFolders());

}  // namespace tavrin
