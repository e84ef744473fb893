#pragma once

#include <filesystem>
#include <string>

namespace tavrin {

// The folder that stands before every absolute path that a printer's software names
// ("/Library/Printers/..."): an administrator or a test can so keep a whole printer installation
// in a folder of its own. Empty (no folder) until a program sets it.
void setRootFolder(std::filesystem::path root);

// Where such an absolute path lies on this machine. Empty for a text that is no absolute path,
// has a ".." component (which could lead out of the root) or a NUL: such a path names nothing.
std::filesystem::path pathBelowRoot(const std::string& absolutePath);

}  // namespace tavrin
