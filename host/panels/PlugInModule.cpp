#include "host/panels/PlugInModule.h"

#include <dlfcn.h>
#include <system_error>

#include "platform/files/InsideFolder.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace fs = std::filesystem;

namespace {

// What is behind a link counts, as that is what would be loaded.
Result<fs::path> fileInside(const fs::path& bundle, const std::string& executable) {
  std::error_code error;
  const fs::path module = fs::canonical(bundle / "Contents" / "Linux" / executable, error);
  if (error || !fs::is_regular_file(module, error))
    return plugInFailure(
        bundle, "lacks its executable file, Contents/Linux/" + executable + ". Install it again.");
  if (!isInside(module, bundle))
    return plugInFailure(bundle,
                         "has an executable file that lies outside of it. Install it again.");
  return module;
}

bool anybodyCanWrite(const fs::path& path) {
  std::error_code error;
  return (fs::status(path, error).permissions() & fs::perms::others_write) != fs::perms::none;
}

}  // namespace

Failure plugInFailure(const fs::path& bundle, const std::string& problem) {
  return {"The plug-in " + quoted(bundle.string()) + " " + problem};
}

Result<fs::path> moduleFile(const fs::path& bundle, const std::string& executable) {
  const auto module = fileInside(bundle, executable);
  if (!module) return module;
  // Whoever can write to one of these could make this program run code of theirs.
  const fs::path contents = bundle / "Contents";
  for (const fs::path& path : {bundle, contents, contents / "Info.plist", contents / "Linux",
                               module->parent_path(), *module}) {
    if (anybodyCanWrite(path))
      return plugInFailure(bundle, "is not safe to load: every user can write to " +
                                       quoted(path.string()) +
                                       ". Take that permission away with chmod o-w.");
  }
  return module;
}

Result<PDEModuleEntryPoint*> loadModule(const fs::path& bundle, const fs::path& module) {
  void* handle = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!handle) return plugInFailure(bundle, std::string("does not load: ") + dlerror() + ".");
  auto* entry = reinterpret_cast<PDEModuleEntryPoint*>(dlsym(handle, kPDEModuleEntryPoint));
  if (!entry)
    return plugInFailure(bundle,
                         "is not a plug-in for this program: its executable file lacks the "
                         "function " +
                             std::string(kPDEModuleEntryPoint) + ".");
  return entry;
}

}  // namespace tavrin
