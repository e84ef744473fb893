#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/text/OptionalString.h"

// The settings that the print system has for every job and that have one of a few values: a table.

namespace tavrin {

// Their names as options of a job.
inline constexpr char kPageSetOption[] = "page-set";
inline constexpr char kOrientationOption[] = "orientation-requested";
inline constexpr char kFitOption[] = "print-scaling";
inline constexpr char kPositionOption[] = "position";
inline constexpr char kPagesPerSheetOption[] = "number-up";
inline constexpr char kOrderOnSheetOption[] = "number-up-layout";
inline constexpr char kBorderOption[] = "page-border";
inline constexpr char kBookletOption[] = "booklet";
inline constexpr char kSheetOrderOption[] = "outputorder";
inline constexpr char kCollateOption[] = "sheet-collate";
inline constexpr char kSidesOption[] = "sides";
inline constexpr char kTogetherOption[] = "multiple-document-handling";

// Values that the program asks for by name.
inline constexpr char kNo[] = "false";
inline constexpr char kYes[] = "true";
inline constexpr char kCollated[] = "collated";
inline constexpr char kReverse[] = "reverse";
inline constexpr char kOneSided[] = "one-sided";
inline constexpr char kTwoSidedShortEdge[] = "two-sided-short-edge";
inline constexpr char kTogether[] = "single-document";

struct JobSetting {
  std::string option;
  // In the order in which a person reads them. The first is the usual one, which a job has that
  // does not have the option; empty where no value of the option says so.
  std::vector<std::string> values;

  const std::string& usual() const { return values.front(); }
  // The value that is meant by one as somebody wrote it, in any letter case; absent for one that
  // the setting does not have. A switch also takes "yes", "no", "on" and "off".
  OptString meant(std::string_view written) const;
};

// All of them; how large pages come out is not among them, as it is more than one option.
const std::vector<JobSetting>& jobSettings();

// The setting of that option, in any letter case; null for one that is not in the table.
const JobSetting* findJobSetting(std::string_view option);

}  // namespace tavrin
