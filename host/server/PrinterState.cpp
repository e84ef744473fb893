#include "host/server/PrinterState.h"

#include <algorithm>

#include <cups/ipp.h>

#include "host/support/TextLists.h"
#include "platform/text/IgnoringCase.h"

namespace tavrin {

namespace {

using Activity = PrinterState::Activity;

const char* activityText(Activity activity) {
  switch (activity) {
    case Activity::idle:
      return "Ready";
    case Activity::printing:
      return "Printing";
    case Activity::stopped:
      return "Stopped";
    case Activity::silent:
      return "Does not answer";
    case Activity::gone:
      return "There is no such printer any more.";
    case Activity::unknown:
      break;
  }
  return "State unknown";
}

bool isReady(const PrinterState& state) {
  return state.activity == Activity::idle && state.acceptsJobs;
}

std::string headText(const PrinterState& state) {
  if (state.acceptsJobs) return activityText(state.activity);
  if (state.activity == Activity::idle) return "Takes no new jobs";
  return activityText(state.activity) + std::string(", takes no new jobs");
}

// The server's words within a sentence. "Paused" is all that it says of a printer that somebody
// stopped.
std::string whyStopped(std::string message) {
  if (message.ends_with('.')) message.pop_back();
  return message == "Paused" ? "" : message;
}

std::string reasonsText(const PrinterState& state) {
  std::vector<std::string> texts;
  for (const std::string& keyword : state.reasons)
    if (std::string words = explained(keyword).words; !words.empty()) texts.push_back(words);
  if (texts.empty() && state.activity == Activity::stopped) return whyStopped(state.message);
  return joined(texts);
}

std::string asSentence(std::string text) {
  if (text.front() >= 'a' && text.front() <= 'z') text.front() -= 'a' - 'A';
  return text;
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
  const std::string reasons = reasonsText(state);
  // A printer that is out of paper is hardly ready.
  if (isReady(state) && !reasons.empty()) return asSentence(reasons);
  std::string text = headText(state);
  if (!reasons.empty()) text += ": " + reasons;
  const bool jobsWait = state.activity == Activity::stopped && state.acceptsJobs;
  return jobsWait ? text + ". Jobs will wait." : text;
}

Concern concernOf(const PrinterState& state) {
  const Activity doing = state.activity;
  if (doing == Activity::stopped || doing == Activity::silent || doing == Activity::gone ||
      !state.acceptsJobs)
    return Concern::trouble;
  Concern concern = Concern::none;
  for (const std::string& keyword : state.reasons)
    concern = std::max(concern, explained(keyword).concern);
  return concern;
}

}  // namespace tavrin
