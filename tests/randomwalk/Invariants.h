#pragma once

#include <string>

#include "tests/randomwalk/PanelUnderTest.h"

// What must hold of a panel, whatever happened to it. Each check gives the first sentence that is
// wrong, and an empty text when all is well.

namespace tavrin::walk {

// Value and ticket of each setting name the same choice, and what is handed over is handed over in
// the order of the protocol.
std::string settingsFault(PanelUnderTest& panel);

// The controls show what the model holds: to be so after every refresh.
std::string controlsFault(PanelUnderTest& panel);

// The pop-ups hold each choice of their option once.
std::string itemsFault(PanelUnderTest& panel);

}  // namespace tavrin::walk
