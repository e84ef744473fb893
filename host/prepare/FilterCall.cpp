#include "host/prepare/FilterCall.h"

#include <fstream>

#include "host/prepare/HarmlessPPD.h"
#include "host/request/JobOptions.h"
#include "platform/text/IgnoringCase.h"

namespace tavrin {

namespace {

constexpr LimitedCommand::Limits kFilterLimits{std::chrono::seconds(60), 1 << 30, 1 << 30};
constexpr std::uintmax_t kLeastRoom = 64 << 10;  // bytes

// The number of copies goes another way, and these two say what the document is.
bool isForFilters(const std::string& name) {
  for (const char* other : {kCopiesOption, kFormatOption, kRawOption})
    if (equalIgnoringCase(name, other)) return false;
  return true;
}

QString shown(const std::string& text) { return QString::fromStdString(text); }
QString shown(const std::filesystem::path& path) { return shown(path.string()); }

}  // namespace

QStringList filterOptions(const OptionList& options) {
  QStringList arguments;
  for (const auto& [name, value] : options)
    if (isForFilters(name)) arguments << "-o" << shown(optionArgument(name, value));
  return arguments;
}

std::optional<LimitedCommand::Call> filterCall(const FilterJob& job) {
  const std::filesystem::path printer = job.folder / "printer.ppd";
  const std::string ppd = harmlessPPD(job.ppd);
  if (ppd.empty() || !(std::ofstream(printer, std::ios::binary) << ppd << std::flush)) return {};
  QStringList arguments{"-p", shown(printer), "-m", job.target, "-i", shown(job.format)};
  arguments += {"-n", "1", "-t", shown(job.title)};
  arguments += filterOptions(job.options);
  // What a printer is told before a PDF is not drawn.
  arguments += {"-o", "emit-jcl=false", shown(job.file)};
  return LimitedCommand::Call{LimitedCommand::find("cupsfilter"), arguments, job.folder,
                              job.folder / job.output, kFilterLimits};
}

bool hasFilters() { return !LimitedCommand::find("cupsfilter").isEmpty(); }

bool hasRoom(const std::filesystem::path& folder) {
  std::error_code problem;
  const auto space = std::filesystem::space(folder, problem);
  return !problem && space.available > kLeastRoom;
}

}  // namespace tavrin
