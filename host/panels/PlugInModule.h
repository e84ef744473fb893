#pragma once

#include <filesystem>
#include <string>

#include "platform/contract/PrintDialogExtension.h"
#include "platform/text/Result.h"

// The module of a bundle: the file with the plug-in's code.

namespace tavrin {

// What is wrong with a bundle, as a sentence: "The plug-in "/x/A.plugin" is not ..."
Failure plugInFailure(const std::filesystem::path& bundle, const std::string& problem);

// The module's file, links followed, by the name that the bundle gives for it. The reason when it
// is missing or lies outside of the bundle.
Result<std::filesystem::path> moduleFile(const std::filesystem::path& bundle,
                                         const std::string& executable);

// Loads the module, runs its code, and gives the function that makes its objects. It stays loaded:
// objects, texts and handlers of its code may live on anywhere.
Result<PDEModuleEntryPoint*> loadModule(const std::filesystem::path& bundle,
                                        const std::filesystem::path& module);

}  // namespace tavrin
