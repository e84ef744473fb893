#pragma once

#include <string>

#include <QIcon>

class QPalette;

namespace tavrin {

// A small picture of what a value of a setting does to a sheet, in the palette's colour for text;
// null for a setting that needs none. The height is in pixels of the screen's own scale.
QIcon valuePicture(const std::string& option, const std::string& value, const QPalette& palette,
                   int height);

}  // namespace tavrin
