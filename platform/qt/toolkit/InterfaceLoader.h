#pragma once

#include <filesystem>
#include <memory>

class QWidget;

namespace tavrin {

// Makes the widgets of an interface file; null if the file is unsound. The root and everything in
// it belong to the caller.
//
// The root is a panel's view, or a plain widget that is never shown and only holds the windows of
// a file of message windows: every QDialog in a file becomes a window of its own.
std::unique_ptr<QWidget> loadInterfaceFile(const std::filesystem::path& file);

}  // namespace tavrin
