#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/text/OptionalString.h"
#include "platform/text/Result.h"

struct ppd_file_s;

// Which plug-in a printer's dialog gets. A PPD only ever names one: where plug-ins come from is not
// for a printer's file to say, as it would otherwise choose the code that a program runs.

namespace tavrin {

// The bundle that this project makes.
inline constexpr char kOwnPlugInName[] = "TavrinPrintSettings.plugin";

// What the PPD's "APDialogExtension" says, as it stands; absent when the PPD is null or has none.
OptString dialogExtension(ppd_file_s* ppd);

// The folders with plug-ins that this program may load, first things first: beside the program
// ("../lib/tavrin" from the folder that it is in), then the user's own,
// $XDG_DATA_HOME/tavrin/plugins. They need not exist.
std::vector<std::filesystem::path> trustedPlugInFolders();

// The bundle folder for a path such as a PPD gives. Only the path's last component counts, which
// must be a plain name ending in ".plugin"; it is looked for in these folders alone. The reason
// says that the name is none or where the bundle was looked for.
Result<std::filesystem::path> findPlugIn(
    const std::string& extension,
    const std::vector<std::filesystem::path>& folders = trustedPlugInFolders());

}  // namespace tavrin
