#include "host/panels/PlugInModule.h"

#include <dlfcn.h>
#include <system_error>

#include "platform/files/InsideFolder.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace fs = std::filesystem;

Failure plugInFailure(const fs::path& bundle, const std::string& problem) {
  return {"The plug-in " + quoted(bundle.string()) + " " + problem};
}

// What is behind a link counts, as that is what would be loaded.
Result<fs::path> moduleFile(const fs::path& bundle, const std::string& executable) {
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
