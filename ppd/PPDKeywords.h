#pragma once

#include <string>

// The PPD main keywords that the panel works with, each as a C string for the lookups that take
// one and as a string for the rest.

namespace tavrin {

inline constexpr char kPrintQualityKey[] = "PrintQuality";
inline constexpr char kPaperTypeKey[] = "MediaType";
inline constexpr char kPaperSourceKey[] = "PaperSource";
inline constexpr char kColorModelKey[] = "ColorModel";
inline constexpr char kSharpeningKey[] = "Sharpening";
inline constexpr char kMirrorKey[] = "Mirror";
inline constexpr char kDupDryTimeKey[] = "DupDryTime";

inline const std::string kNSPrintQualityKey = kPrintQualityKey;
inline const std::string kNSPaperTypeKey = kPaperTypeKey;
inline const std::string kNSPaperSourceKey = kPaperSourceKey;
inline const std::string kNSColorModelKey = kColorModelKey;
inline const std::string kNSSharpeningKey = kSharpeningKey;
inline const std::string kNSMirrorKey = kMirrorKey;
inline const std::string kNSDupDryTimeKey = kDupDryTimeKey;
inline const std::string kNSTray2OptionKey = "Tray2Option";

// Vendor attributes: where the driver's bundle and the printer's help lie.
inline const std::string CUPS_DRIVER_KEY = "TavDriverPath";
inline const std::string HELP_KEY = "TavHelpPath";

// Choice keywords that several parts of the panel test for.
inline const std::string kNSIronOn = "IronOn";
inline const std::string kNSTransparency = "Transparency";
inline const std::string kNSBlack = "Black";

// A label of the panel and of its summary.
inline const std::string kNSPrintBlackAndWhiteLabel = "Print in Black and White";

}  // namespace tavrin
