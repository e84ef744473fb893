#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>

#include <QByteArray>
#include <QString>

namespace tavrin {

// Larger interface files (bytes) are refused.
inline constexpr std::size_t kInterfaceSizeLimit = 256 * 1024;

// Reads an interface file and checks it before a form builder sees it: it comes from a plug-in's
// bundle, which may be damaged or meant to harm. Absent unless it is a regular file of moderate
// size, sound XML, and made of nothing but plain widgets, layouts and harmless properties (no
// pictures, style sheets, scripts, foreign widgets or excessive numbers).
std::optional<QByteArray> readInterfaceFile(const std::filesystem::path& file);

// Whether these bytes would pass the check.
bool isSoundInterface(const QByteArray& bytes);

// Whether an interface file may ask for a widget of that class.
bool isKnownWidgetClass(const QString& name);

}  // namespace tavrin
