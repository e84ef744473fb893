#pragma once

#include "tests/randomwalk/PanelUnderTest.h"
#include "tests/randomwalk/Step.h"
#include "tests/randomwalk/WindowRules.h"

// What a step must leave behind, written down a second time.

namespace tavrin::walk {

// Whether the step ends in a check for conflicts.
bool checksConflicts(const Step& step);

// Whether the step brings the panel's controls in line with its model.
bool refreshes(const Step& step);

// What must be true when the next window comes up or the step ends.
struct Expected {
  Outcome outcome;
  bool refreshed = false;      // the controls were brought in line: the mirror's rule may have run
  bool mayLoseMirror = false;  // paper other than iron-on was picked
};

// What the step must leave behind on a panel as it stands now, before any window comes up.
Expected afterStep(const Step& step, PanelUnderTest& panel, const Outcome& before);

}  // namespace tavrin::walk
