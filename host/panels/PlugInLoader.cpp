#include "host/panels/PlugInLoader.h"

#include <algorithm>
#include <dlfcn.h>

#include "platform/files/FileName.h"

namespace tavrin {

namespace fs = std::filesystem;

namespace {

// What Info.plist says of the plug-in.
struct Description {
  std::string executable;
  std::string principalClass;
  std::string panelType;
};

std::string quoted(const fs::path& path) { return "\"" + path.string() + "\""; }

Failure about(const fs::path& bundle, const std::string& problem) {
  return {"The plug-in " + quoted(bundle) + " " + problem};
}

Result<Description> describe(const Bundle& bundle) {
  if (!bundle.infoDictionary())
    return about(bundle.path(), "has no readable Contents/Info.plist. Install it again.");
  const auto text = [&](const char* key) { return bundle.info(key).value_or(""); };
  Description found{text("CFBundleExecutable"), text("NSPrincipalClass"), text(kPanelTypeKey)};
  if (!isPlainFileName(found.executable))
    return about(bundle.path(), "names no executable file. Install it again.");
  if (found.principalClass.empty())
    return about(bundle.path(), "names no principal class. Install it again.");
  if (found.panelType.empty())
    return about(bundle.path(), "does not say which panels it has. Install it again.");
  return found;
}

// The module's file; what is behind a link counts, as that is what would be loaded.
Result<fs::path> moduleFile(const fs::path& bundle, const std::string& executable) {
  std::error_code error;
  const fs::path home = fs::canonical(bundle, error);
  const fs::path module = fs::canonical(bundle / "Contents" / "Linux" / executable, error);
  if (error || !fs::is_regular_file(module, error))
    return about(bundle,
                 "lacks its executable file, Contents/Linux/" + executable + ". Install it again.");
  const auto [end, inside] = std::mismatch(home.begin(), home.end(), module.begin(), module.end());
  if (end != home.end())
    return about(bundle, "has an executable file that lies outside of it. Install it again.");
  return module;
}

bool anybodyCanWrite(const fs::path& path) {
  std::error_code error;
  return (fs::status(path, error).permissions() & fs::perms::others_write) != fs::perms::none;
}

// Whoever can write to the bundle could make this program run code of theirs.
Result<fs::path> guarded(const fs::path& bundle, const fs::path& module) {
  const fs::path contents = bundle / "Contents";
  for (const fs::path& path : {bundle, contents, contents / "Info.plist", contents / "Linux",
                               module.parent_path(), module}) {
    if (anybodyCanWrite(path))
      return about(bundle, "is not safe to load: every user can write to " + quoted(path) +
                               ". Take that permission away with chmod o-w.");
  }
  return module;
}

// The module stays loaded: objects, texts and handlers of its code may live on anywhere.
Result<PDEModuleEntryPoint*> entryPointOf(const fs::path& bundle, const fs::path& module) {
  void* handle = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!handle) return about(bundle, std::string("does not load: ") + dlerror() + ".");
  auto* entry = reinterpret_cast<PDEModuleEntryPoint*>(dlsym(handle, kPDEModuleEntryPoint));
  if (!entry)
    return about(bundle, "is no plug-in for this program: its executable file lacks the function " +
                             std::string(kPDEModuleEntryPoint) + ".");
  return entry;
}

Result<std::unique_ptr<PDEPlugIn>> principalObject(const fs::path& bundle,
                                                   PDEModuleEntryPoint& entry,
                                                   const std::string& className) {
  PDEPlugIn* made = nullptr;
  unsigned version = 0;
  const auto answer = entry(kPDEInterfaceVersion, className.c_str(), &made, &version);
  if (answer == PDEModuleAnswer::otherInterface)
    return about(bundle, "was built against interface version " + std::to_string(version) +
                             ", this program has version " + std::to_string(kPDEInterfaceVersion) +
                             ". Install the plug-in that belongs to this program.");
  if (answer != PDEModuleAnswer::made || !made)
    return about(bundle, "lacks its principal class, \"" + className + "\". Install it again.");
  return std::unique_ptr<PDEPlugIn>(made);
}

}  // namespace

Result<LoadedPlugIn> loadPlugIn(const fs::path& bundleFolder) {
  std::error_code error;
  if (!fs::is_directory(bundleFolder, error))
    return Failure{"There is no plug-in bundle " + quoted(bundleFolder) + "."};
  auto bundle = std::make_unique<const Bundle>(Bundle::atPath(bundleFolder));
  const auto description = describe(*bundle);
  if (!description) return Failure{description.reason()};
  const auto module = moduleFile(bundleFolder, description->executable);
  if (!module) return Failure{module.reason()};
  const auto safe = guarded(bundleFolder, *module);
  if (!safe) return Failure{safe.reason()};
  const auto entry = entryPointOf(bundleFolder, *safe);
  if (!entry) return Failure{entry.reason()};
  auto principal = principalObject(bundleFolder, **entry, description->principalClass);
  if (!principal) return Failure{principal.reason()};
  if (!(*principal)->initWithBundle(bundle.get()))
    return about(bundleFolder, "cannot work on this machine.");
  return LoadedPlugIn{std::move(bundle), description->panelType, std::move(*principal)};
}

}  // namespace tavrin
