#include "host/panels/TrustedBundles.h"

#include <QStandardPaths>
#include <QString>
#include <cups/ppd.h>

#include "host/support/TextLists.h"
#include "platform/files/FileName.h"
#include "platform/files/ProgramFolder.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace fs = std::filesystem;

namespace {

constexpr char kSuffix[] = ".plugin";

// Empty where the user's data folder is a relative path: what lies below the folder that the
// program was started in is not the user's.
fs::path userFolder() {
  const fs::path data =
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
  return data.is_absolute() ? data / "tavrin" / "plugins" : fs::path();
}

// The last component of what a PPD says, empty unless it is a bundle's plain name. A PPD may be
// written on another system, but its paths have slashes all the same.
std::string bundleName(const std::string& extension) {
  const std::string name = extension.substr(extension.rfind('/') + 1);
  const bool good =
      name.size() > sizeof(kSuffix) - 1 && name.ends_with(kSuffix) && isPlainFileName(name);
  return good ? name : std::string();
}

}  // namespace

OptString dialogExtension(ppd_file_s* ppd) {
  const ppd_attr_t* attribute = ppd ? ppdFindAttr(ppd, "APDialogExtension", nullptr) : nullptr;
  return attribute && attribute->value ? OptString(attribute->value) : std::nullopt;
}

std::vector<fs::path> trustedPlugInFolders() {
  // The build tree has the same layout as an installation.
  std::vector<fs::path> folders{programFolder().parent_path() / "lib" / "tavrin"};
  if (fs::path own = userFolder(); !own.empty()) folders.push_back(std::move(own));
  return folders;
}

Result<fs::path> findPlugIn(const std::string& extension, const std::vector<fs::path>& folders) {
  const std::string name = bundleName(extension);
  if (name.empty())
    return Failure{quoted(extension) + " names no plug-in: a plug-in's name ends in .plugin."};
  std::vector<std::string> places;
  for (const fs::path& folder : folders) {
    std::error_code error;
    if (fs::is_directory(folder / name, error)) return folder / name;
    places.push_back(folder.string());
  }
  return Failure{"The plug-in " + quoted(name) + " is not installed; it was looked for in " +
                 joined(places) + "."};
}

}  // namespace tavrin
