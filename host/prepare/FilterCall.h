#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <QStringList>

#include "host/prepare/LimitedCommand.h"
#include "host/support/OptionList.h"

namespace tavrin {

// What every document becomes before a printer's own language comes in, and what a text becomes
// before its pages are laid out.
inline constexpr char kLaidOut[] = "application/vnd.cups-pdf";
inline constexpr char kPDF[] = "application/pdf";

// A document on its way through the print system's filters, as far as a format.
struct FilterJob {
  std::filesystem::path folder;  // for the output and whatever else the filters need
  std::filesystem::path file;
  std::string format;  // of the file
  std::string ppd;     // its text
  std::string title;
  OptionList options;  // of the job
  const char* target;  // the format
  const char* output;  // the name that the output gets in the folder
};

// The command that does it. Writes the PPD into the folder; absent where that fails.
std::optional<LimitedCommand::Call> filterCall(const FilterJob& job);

// Whether the system has the command.
bool hasFilters();

// The options of a job as the filters get them, each as one argument "name=value".
QStringList filterOptions(const OptionList& options);

// Whether there is room in a folder. A file that was cut off may look like one without pages.
bool hasRoom(const std::filesystem::path& folder);

}  // namespace tavrin
