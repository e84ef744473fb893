#include "host/panels/PlugInLoader.h"

#include "host/panels/PlugInModule.h"
#include "host/panels/PlugInSafety.h"
#include "platform/files/FileName.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace fs = std::filesystem;

namespace {

// What Info.plist says of the plug-in's code.
struct Description {
  std::string executable;
  std::string principalClass;
};

Result<Description> describe(const Bundle& bundle) {
  const auto problem = [&](const std::string& text) {
    return plugInFailure(bundle.path(), text + " Install it again.");
  };
  if (!bundle.infoDictionary()) return problem("has no readable Contents/Info.plist.");
  const auto text = [&](const char* key) { return bundle.info(key).value_or(""); };
  Description found{text("CFBundleExecutable"), text("NSPrincipalClass")};
  if (!isPlainFileName(found.executable)) return problem("names no executable file.");
  if (found.principalClass.empty()) return problem("names no principal class.");
  if (text(kPanelTypeKey).empty()) return problem("does not say which panels it has.");
  return found;
}

Result<std::unique_ptr<PDEPlugIn>> principalObject(const fs::path& bundle,
                                                   PDEModuleEntryPoint& entry,
                                                   const std::string& className) {
  PDEPlugIn* made = nullptr;
  unsigned version = 0;
  const auto answer = entry(kPDEInterfaceVersion, className.c_str(), &made, &version);
  if (answer == PDEModuleAnswer::otherInterface)
    return plugInFailure(bundle, "was built against interface version " + std::to_string(version) +
                                     ", this program has version " +
                                     std::to_string(kPDEInterfaceVersion) +
                                     ". Install the plug-in that belongs to this program.");
  if (answer != PDEModuleAnswer::made || !made)
    return plugInFailure(bundle,
                         "lacks its principal class, " + quoted(className) + ". Install it again.");
  return std::unique_ptr<PDEPlugIn>(made);
}

Result<LoadedPlugIn> loadSafePlugIn(const fs::path& folder) {
  auto bundle = std::make_unique<const Bundle>(Bundle::atPath(folder));
  const auto description = describe(*bundle);
  if (!description) return Failure{description.reason()};
  const auto module = moduleFile(folder, description->executable);
  if (!module) return Failure{module.reason()};
  const auto entry = loadModule(folder, *module);
  if (!entry) return Failure{entry.reason()};
  auto principal = principalObject(folder, **entry, description->principalClass);
  if (!principal) return Failure{principal.reason()};
  if (!(*principal)->initWithBundle(bundle.get()))
    return plugInFailure(folder, "cannot work on this machine.");
  return LoadedPlugIn{std::move(bundle), std::move(*principal)};
}

}  // namespace

Result<LoadedPlugIn> loadPlugIn(const fs::path& bundleFolder) {
  std::error_code error;
  // What is checked is what is loaded, so that nobody can turn a link elsewhere in between.
  const fs::path folder = fs::canonical(bundleFolder, error);
  if (error || !fs::is_directory(folder, error))
    return Failure{"There is no plug-in bundle " + quoted(bundleFolder.string()) + "."};
  if (const std::string danger = dangerIn(folder); !danger.empty())
    return plugInFailure(folder, "is not safe to load: " + danger);
  return loadSafePlugIn(folder);
}

}  // namespace tavrin
