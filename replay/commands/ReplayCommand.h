#pragma once

#include <istream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/text/OptionalString.h"
#include "platform/text/Result.h"
#include "replay/commands/LineLimits.h"

namespace tavrin {

enum class Verb {
  initWithBundle,
  panelsForType,
  open,
  close,
  panelView,
  willShow,
  shouldHide,
  supportedKeys,
  saveValues,
  restoreValues,
  optionDidChange,
  summaryInfo,
  shouldShowHelp,
  mark,
  unmark,
  page,
  columns,
  choose,
  click,
  slide,
  state,
};

// What to do with one message window.
struct WindowAnswer {
  enum class End { ok, close };

  std::vector<int> choose;  // choice buttons by number, 1 to 3, in the order of the clicks
  End end = End::ok;
};

// A main keyword of the PPD and a choice of it.
using MarkedChoice = std::pair<std::string, std::string>;

// One line of a script. Only the fields that its verb takes have a meaning; the others keep their
// defaults.
struct ReplayCommand {
  Verb verb = Verb::state;
  OptString panel;  // absent: the panel opened last, "1" for open

  OptString bundle;
  std::string type;
  OptString ppd;
  OptString page;
  OptString columns;
  bool markDefaults = true;
  std::vector<MarkedChoice> marks;

  OptString key;
  OptString choice;

  std::string control;
  long long index = 0;
  long long value = 0;
  std::vector<WindowAnswer> answers;
};

// Takes the next line of a script, without its line break; absent after the last one. Of a line
// that is too long only the beginning is given, one byte past the limit, so that it does not fill
// memory.
std::optional<std::string> nextLine(std::istream& script);

// Reads a line of a script. The reason names what is wrong: a line that breaks a limit or is not a
// JSON object, an unknown verb, or a field that is unknown to the verb, missing, or of another
// form.
Result<ReplayCommand> parseCommand(const std::string& line);

// Every verb as scripts spell it.
std::vector<std::string> verbNames();

}  // namespace tavrin
