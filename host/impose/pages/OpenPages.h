#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "host/impose/pages/PageSource.h"

namespace tavrin {

// The pages of a document, whose format is a MIME type; for a picture, what the file is counts more
// than its type. Never null; throws Trouble.
std::unique_ptr<PageSource> openPages(const std::string& format, const std::filesystem::path& file);

}  // namespace tavrin
