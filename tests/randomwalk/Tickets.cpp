#include "tests/randomwalk/Tickets.h"

#include "ppd/PPDKeywords.h"

namespace tavrin::walk {
namespace {

// Equal, or changed as iron-on paper, or leaving it, changes the mirror.
bool mirrorFollows(const OptString& expected, const OptString& now, bool ironOn, bool refreshed) {
  if (now == expected) return true;
  return refreshed &&
         (ironOn ? expected == "False" && now == "True" : expected == "True" && now == "False");
}

}  // namespace

Tickets ticketsOf(PanelUnderTest& panel) {
  Tickets tickets;
  for (const auto& [key, setting] : panel.settings()) tickets[key] = setting.ticket;
  return tickets;
}

std::string ticketsFault(Tickets expected, Tickets now, bool refreshed) {
  const bool ironOn = now[kNSPaperTypeKey] == "IronOn";
  if (!mirrorFollows(expected[kNSMirrorKey], now[kNSMirrorKey], ironOn, refreshed)) {
    return "the mirror is " + now[kNSMirrorKey].value_or("absent");
  }
  expected.erase(kNSMirrorKey);
  now.erase(kNSMirrorKey);
  for (const auto& [key, ticket] : expected) {
    if (now[key] != ticket) {
      return key + " is " + now[key].value_or("absent") + ", not " + ticket.value_or("absent");
    }
  }
  return now.size() == expected.size() ? "" : "other settings are handed over";
}

}  // namespace tavrin::walk
