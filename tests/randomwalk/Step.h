#pragma once

#include <string>
#include <vector>

#include "platform/text/OptionalString.h"
#include "tests/randomwalk/Printer.h"

namespace tavrin::walk {

// How a user answers one conflict window.
struct Answer {
  enum class End { ok, close, programEnds };
  std::vector<int> choices;  // clicked in this order; one that the window lacks is left out
  End end = End::ok;
};

// One thing that happens to a panel. A step that cannot happen (a control that nobody could work)
// is passed over, so that steps before it can be taken away.
struct Step {
  enum class Verb {
    choose,      // name: pop-up, number: item
    click,       // name: check box, radio button or disclosure
    slide,       // name: slider, number: value
    hostChange,  // name: key, text: choice
    mark,        // name: key, text: choice
    unmark,      // name: key
    restore,
    willShow,
    page,     // text: paper name
    columns,  // text: value
    reopen,   // the host releases the panel and asks for a new one
  };

  Verb verb;
  int panel = 0;
  std::string name;
  int number = 0;
  OptString text;
  std::vector<Answer> answers;  // for the windows that come up; then first choice and OK
};

std::vector<Step> randomSteps(Dice& dice, int count, int panels);

}  // namespace tavrin::walk
