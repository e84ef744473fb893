#include "host/panels/TrustedBundles.h"

#include <cstdlib>

#include <cups/ppd.h>

#include "platform/files/FileName.h"

namespace tavrin {

namespace fs = std::filesystem;

namespace {

constexpr char kSuffix[] = ".plugin";

fs::path programFolder() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).parent_path();
}

// A relative path in these variables means nothing, as their definition says.
fs::path absoluteFrom(const char* variable) {
  const char* value = std::getenv(variable);
  const fs::path path = value ? value : "";
  return path.is_absolute() ? path : fs::path();
}

fs::path userFolder() {
  fs::path data = absoluteFrom("XDG_DATA_HOME");
  if (data.empty()) {
    const fs::path home = absoluteFrom("HOME");
    if (!home.empty()) data = home / ".local" / "share";
  }
  return data.empty() ? data : data / "tavrin" / "plugins";
}

// The last component of what a PPD says, empty unless it is a bundle's plain name. A PPD may be
// written on another system, but its paths have slashes all the same.
std::string bundleName(const std::string& extension) {
  const std::string name = extension.substr(extension.rfind('/') + 1);
  const bool good =
      name.size() > sizeof(kSuffix) - 1 && name.ends_with(kSuffix) && isPlainFileName(name);
  return good ? name : std::string();
}

std::string listed(const std::vector<fs::path>& folders) {
  std::string text;
  for (const fs::path& folder : folders) text += (text.empty() ? "" : ", ") + folder.string();
  return text;
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
    return Failure{"\"" + extension + "\" names no plug-in: a plug-in's name ends in .plugin."};
  for (const fs::path& folder : folders) {
    std::error_code error;
    if (fs::is_directory(folder / name, error)) return folder / name;
  }
  return Failure{"The plug-in \"" + name + "\" is not installed; it was looked for in " +
                 listed(folders) + "."};
}

}  // namespace tavrin
