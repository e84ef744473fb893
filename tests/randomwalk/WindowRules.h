#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/text/OptionalString.h"
#include "tests/randomwalk/Step.h"

// What a conflict window's answer must leave behind, written down a second time.

namespace tavrin::walk {

// All fourteen flags of the process.
struct FlagState {
  std::vector<bool> instruction, conflict, ignore;

  static FlagState now();
  friend bool operator==(const FlagState&, const FlagState&) = default;
};

// Tickets by PPD keyword, the flags and the number of notifications.
struct Outcome {
  std::map<std::string, OptString> tickets;
  FlagState flags;
  int notifications = 0;
};

// The window that a code brings up: "MsgOne", "MsgTwo" or "MsgFive".
std::string windowOfCode(int code);
int choicesOfWindow(const std::string& window);

// What must be true once a window that came up with `before` was answered with OK for that choice.
Outcome afterOk(const std::string& window, int choice, Outcome before);

}  // namespace tavrin::walk
