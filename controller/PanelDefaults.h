#pragma once

#include <string>

// The choices that a new panel starts with, where the printer has them.

namespace tavrin {

inline const std::string kNSPrintQualityDefault = "Automatic";
inline const std::string kNSPaperTypeDefault = "Automatic";
inline const std::string kNSPaperSourceDefault = "Tray1";
inline const std::string kNSColorModelDefault = "Color";
inline const std::string kNSMirrorDefault = "False";
inline const std::string kNSSharpeningDefault = "Automatic";
inline const std::string kNSDupDryTimePopUpDefault = "Automatic";
inline const std::string kNSDupDryTimeCheckboxDefault = "False";

// The keyword of a choice that switches something on.
inline const std::string kNSTrue = "True";

}  // namespace tavrin
