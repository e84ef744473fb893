#include "host/server/PrinterReasons.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace tavrin {
namespace {

struct KnownReason {
  std::string_view keyword;
  std::string_view words;
  Concern least;  // printers and their back ends report open doors and empty trays as all is well
};

constexpr std::array kKnownReasons{
    KnownReason{"connecting-to-device", "connecting", Concern::none},
    KnownReason{"cover-open", "a cover is open", Concern::warning},
    KnownReason{"cups-missing-filter", "a part of its software is missing", Concern::trouble},
    KnownReason{"cups-remote-stopped", "stopped at its computer", Concern::warning},
    KnownReason{"door-open", "a door is open", Concern::warning},
    KnownReason{"hold-new-jobs", "new jobs are held", Concern::warning},
    KnownReason{"input-tray-missing", "a paper tray is missing", Concern::warning},
    KnownReason{"interlock-open", "something is open", Concern::warning},
    KnownReason{"marker-supply-empty", "out of ink", Concern::warning},
    KnownReason{"marker-supply-low", "ink low", Concern::warning},
    KnownReason{"marker-supply-missing", "a cartridge is missing", Concern::warning},
    KnownReason{"marker-waste-almost-full", "waste ink container almost full", Concern::warning},
    KnownReason{"marker-waste-full", "waste ink container full", Concern::warning},
    KnownReason{"media-empty", "out of paper", Concern::warning},
    KnownReason{"media-jam", "paper jam", Concern::warning},
    KnownReason{"media-low", "paper low", Concern::warning},
    KnownReason{"media-needed", "needs paper", Concern::warning},
    KnownReason{"moving-to-paused", "about to stop", Concern::warning},
    KnownReason{"offline", "switched off or not connected", Concern::warning},
    KnownReason{"other", "needs attention", Concern::warning},
    KnownReason{"output-area-almost-full", "output tray almost full", Concern::warning},
    KnownReason{"output-area-full", "output tray full", Concern::warning},
    KnownReason{"output-tray-missing", "output tray missing", Concern::warning},
    KnownReason{"paused", "", Concern::none},  // "Stopped" says so already
    KnownReason{"shutdown", "switched off", Concern::warning},
    KnownReason{"spool-area-full", "no room for more jobs", Concern::warning},
    KnownReason{"stopped-partly", "partly stopped", Concern::warning},
    KnownReason{"stopping", "about to stop", Concern::warning},
    KnownReason{"timed-out", "does not answer", Concern::warning},
    KnownReason{"toner-empty", "out of toner", Concern::warning},
    KnownReason{"toner-low", "toner low", Concern::warning},
};

// Takes the severity off the keyword.
Concern severityOf(std::string_view& keyword) {
  using Severity = std::pair<std::string_view, Concern>;
  for (const auto& [suffix, concern] : {Severity{"-report", Concern::none},
                                        {"-warning", Concern::warning},
                                        {"-error", Concern::trouble}}) {
    if (!keyword.ends_with(suffix)) continue;
    keyword.remove_suffix(suffix.size());
    return concern;
  }
  return Concern::none;
}

std::string inWords(std::string_view keyword) {
  std::string words(keyword);
  std::ranges::replace(words, '-', ' ');
  return words;
}

}  // namespace

PrinterReason explained(const std::string& keyword) {
  std::string_view name = keyword;
  const Concern severity = severityOf(name);
  const auto* known = std::ranges::find(kKnownReasons, name, &KnownReason::keyword);
  if (known != kKnownReasons.end())
    return {std::string(known->words), std::max(known->least, severity)};
  if (severity != Concern::trouble) return {};
  return {inWords(name), severity};
}

}  // namespace tavrin
