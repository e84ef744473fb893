#include "host/server/PrinterState.h"

#include <algorithm>

#include <cups/ipp.h>

#include "host/support/TextLists.h"

namespace tavrin {

namespace {

using Activity = PrinterState::Activity;

// A keyword in words: "media-empty-warning" is "media empty (warning)".
std::string reasonText(std::string reason) {
  std::string severity;
  for (const char* suffix : {"-report", "-warning", "-error"}) {
    if (!reason.ends_with(suffix)) continue;
    severity = suffix + 1;
    reason.resize(reason.size() - severity.size() - 1);
    break;
  }
  std::ranges::replace(reason, '-', ' ');
  return severity == "warning" ? reason + " (warning)" : reason;
}

const char* activityText(Activity activity) {
  switch (activity) {
    case Activity::idle:
      return "Idle";
    case Activity::printing:
      return "Printing";
    case Activity::stopped:
      return "Stopped";
    case Activity::unknown:
      break;
  }
  return "State unknown";
}

std::vector<std::string> reasonTexts(const PrinterState& state) {
  std::vector<std::string> texts;
  // "Stopped" has said so already.
  for (const std::string& reason : state.reasons)
    if (reason != "paused") texts.push_back(reasonText(reason));
  // "Paused" is all that the server says of a printer that somebody stopped.
  const bool isExplained = !state.message.empty() && state.message != "Paused";
  if (texts.empty() && state.activity == Activity::stopped && isExplained)
    texts.push_back(state.message);
  return texts;
}

}  // namespace

Activity activityFrom(int ippState) {
  switch (ippState) {
    case IPP_PSTATE_IDLE:
      return Activity::idle;
    case IPP_PSTATE_PROCESSING:
      return Activity::printing;
    case IPP_PSTATE_STOPPED:
      return Activity::stopped;
    default:
      return Activity::unknown;
  }
}

std::vector<std::string> reasonsFrom(const std::string& list) {
  std::vector<std::string> reasons;
  for (const std::string& reason : partsOf(list))
    if (!reason.empty() && reason != "none") reasons.push_back(reason);
  return reasons;
}

std::string stateText(const PrinterState& state) {
  std::string text = activityText(state.activity);
  if (!state.acceptsJobs) text += ", not accepting jobs";
  if (const auto reasons = reasonTexts(state); !reasons.empty()) text += ": " + joined(reasons);
  return text;
}

}  // namespace tavrin
