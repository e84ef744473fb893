#pragma once

#include <string>

#include "tests/randomwalk/PanelUnderTest.h"

// What must be true of a panel, whatever has happened to it. Each check tells the first fault in a
// sentence; empty if all is well.

namespace tavrin::walk {

// Value and ticket of each setting name the same choice, and the tickets are handed over in the
// order of the protocol.
std::string settingsFault(PanelUnderTest& panel);

// The controls show what the model holds; must be true after every refresh.
std::string controlsFault(PanelUnderTest& panel);

// The pop-ups hold each choice of their option once.
std::string itemsFault(PanelUnderTest& panel);

}  // namespace tavrin::walk
