#pragma once

#include <filesystem>
#include <string>

namespace tavrin {

// Sets the folder that is put before every absolute path that a printer's software names
// ("/Library/Printers/..."), so that an administrator or a test can keep a whole printer
// installation in one folder. Empty (no folder) until a program sets it.
void setRootFolder(std::filesystem::path root);

// Where such an absolute path lies on this machine. Empty for a text that is not an absolute path
// or has a NUL or a ".." component, which could lead out of the root: such a path names nothing,
// and whoever reads there finds nothing, whatever the current folder is.
std::filesystem::path pathBelowRoot(const std::string& absolutePath);

}  // namespace tavrin
