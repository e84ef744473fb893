#pragma once

#include <string>
#include <vector>

#include "host/server/PrinterReasons.h"

namespace tavrin {

// What a printer is doing, as the print server last said (Destinations.h asks it).
struct PrinterState {
  enum class Activity {
    unknown,
    idle,
    printing,
    stopped,  // jobs wait
    silent,   // nobody could be asked
    gone,     // there is no such queue any more
  };

  Activity activity = Activity::unknown;
  bool acceptsJobs = true;
  std::vector<std::string> reasons = {};  // keywords such as "media-empty-warning"; "none" left out
  std::string message = {};               // the server's words; often empty
};

// The activity for a value of IPP's "printer-state".
PrinterState::Activity activityFrom(int ippState);

// The keywords of a "printer-state-reasons", which are separated by commas; without "none".
std::vector<std::string> reasonsFrom(const std::string& list);

// The state in words for the screen: "Ready", "Ink low", "Stopped: out of paper. Jobs will wait."
std::string stateText(const PrinterState& state);

// How much the state is in the way of printing now.
Concern concernOf(const PrinterState& state);

}  // namespace tavrin
