#include "tests/randomwalk/WindowRules.h"

#include "tests/fixtures/FreshConflicts.h"

namespace tavrin::walk {
namespace {

// Positions in the lists of FreshConflicts.h.
enum Instruction { mirrorShown, layoutShown, blackShown, cartridgesShown, sizeShown };
enum Conflict { sizeConflict, layoutConflict, blackConflict, mirrorConflict, cartridgeConflict };
enum Ignore { ironOnDraft, ironOnLayout, transparencyLayout, mirrorEnvelope };

template <class Flags>
std::vector<bool> values(const Flags& flags) {
  std::vector<bool> list;
  for (const bool* flag : flags) list.push_back(*flag);
  return list;
}

// Takes a conflict that is flagged; true when it was.
bool take(Outcome& outcome, Conflict conflict) {
  const bool was = outcome.flags.conflict[conflict];
  outcome.flags.conflict[conflict] = false;
  return was;
}

void ofMsgOne(Outcome& outcome, int choice) {
  if (choice == 1) {
    outcome.tickets["PrintQuality"] = "Normal";
    outcome.tickets["MediaType"] = "IronOn";
  } else if (choice == 2) {
    outcome.tickets["PrintQuality"] = "Draft";
    outcome.tickets["MediaType"] = "Plain";
  } else {
    outcome.flags.ignore[ironOnDraft] = true;
  }
  outcome.notifications += 1;
}

void ofMsgTwo(Outcome& outcome, int choice) {
  const OptString paper = outcome.tickets["MediaType"];
  const bool layout = take(outcome, layoutConflict);
  const bool mirror = take(outcome, mirrorConflict);
  if (choice == 1) {
    if (layout) outcome.tickets["MediaType"] = "Plain";
    if (mirror) outcome.tickets["Mirror"] = "False";
    outcome.notifications += 1;
  } else if (choice == 2) {
    if (mirror) outcome.flags.instruction[mirrorShown] = true;
    if (layout) outcome.flags.instruction[layoutShown] = true;
  } else {
    if (layout && paper == "IronOn") outcome.flags.ignore[ironOnLayout] = true;
    if (layout && paper == "Transparency") outcome.flags.ignore[transparencyLayout] = true;
    if (mirror) outcome.flags.ignore[mirrorEnvelope] = true;
  }
}

void ofMsgFive(Outcome& outcome, int choice) {
  const bool size = take(outcome, sizeConflict);
  const bool black = take(outcome, blackConflict);
  const bool cartridge = take(outcome, cartridgeConflict);
  if (choice == 1) {
    if (size) outcome.tickets["MediaType"] = "Plain";
    if (black || cartridge) outcome.tickets["ColorModel"] = "Color";
    outcome.notifications += 1;
  } else {
    if (black) outcome.flags.instruction[blackShown] = true;
    if (cartridge) outcome.flags.instruction[cartridgesShown] = true;
    if (size) outcome.flags.instruction[sizeShown] = true;
  }
}

}  // namespace

FlagState FlagState::now() {
  return {values(kInstructionFlags), values(kConflictFlags), values(kIgnoreFlags)};
}

std::string windowOfCode(int code) {
  static const char* const windows[] = {"MsgOne",  "MsgFive", "MsgFive", "MsgTwo",  "MsgFive",
                                        "MsgFive", "MsgTwo",  "MsgFive", "MsgFive", "MsgFive",
                                        "MsgTwo",  "MsgFive", "MsgFive"};
  return windows[code];
}

int choicesOfWindow(const std::string& window) { return window == "MsgFive" ? 2 : 3; }

Outcome afterOk(const std::string& window, int choice, Outcome outcome) {
  if (window == "MsgOne") ofMsgOne(outcome, choice);
  if (window == "MsgTwo") ofMsgTwo(outcome, choice);
  if (window == "MsgFive") ofMsgFive(outcome, choice);
  return outcome;
}

}  // namespace tavrin::walk
