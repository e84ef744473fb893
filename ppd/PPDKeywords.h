#pragma once

#include <string>

// The PPD's keywords that the panel works with; main keywords as a C string for the lookups that
// take one and as a string for the rest.

namespace tavrin {

inline constexpr char kPrintQualityKey[] = "PrintQuality";
inline constexpr char kPaperTypeKey[] = "MediaType";
inline constexpr char kPaperSourceKey[] = "PaperSource";
inline constexpr char kColorModelKey[] = "ColorModel";
inline constexpr char kSharpeningKey[] = "Sharpening";
inline constexpr char kMirrorKey[] = "Mirror";
inline constexpr char kDupDryTimeKey[] = "DupDryTime";
inline constexpr char kPageSizeKey[] = "PageSize";  // the paper's

inline const std::string kNSPrintQualityKey = kPrintQualityKey;
inline const std::string kNSPaperTypeKey = kPaperTypeKey;
inline const std::string kNSPaperSourceKey = kPaperSourceKey;
inline const std::string kNSColorModelKey = kColorModelKey;
inline const std::string kNSSharpeningKey = kSharpeningKey;
inline const std::string kNSMirrorKey = kMirrorKey;
inline const std::string kNSDupDryTimeKey = kDupDryTimeKey;
inline const std::string kNSTray2OptionKey = "Tray2Option";

// The choices that a new panel starts with, where the printer has them.
inline const std::string kNSPrintQualityDefault = "Automatic";
inline const std::string kNSPaperTypeDefault = "Automatic";
inline const std::string kNSPaperSourceDefault = "Tray1";
inline const std::string kNSColorModelDefault = "Color";
inline const std::string kNSMirrorDefault = "False";
inline const std::string kNSSharpeningDefault = "Automatic";
inline const std::string kNSDupDryTimePopUpDefault = "Automatic";
inline const std::string kNSDupDryTimeCheckboxDefault = "False";

// Vendor attributes: where the driver's bundle and the printer's help lie.
inline const std::string CUPS_DRIVER_KEY = "TavDriverPath";
inline const std::string HELP_KEY = "TavHelpPath";

// Choice keywords that several parts of the panel test for.
inline const std::string kNSIronOn = "IronOn";
inline const std::string kNSTransparency = "Transparency";
inline const std::string kNSBlack = "Black";
inline const std::string kNSDraft = "Draft";
inline const std::string kNSTrue = "True";  // switches something on

// A label of the panel and of its summary.
inline const std::string kNSPrintBlackAndWhiteLabel = "Print in Black and White";

}  // namespace tavrin
