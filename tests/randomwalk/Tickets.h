#pragma once

#include <map>
#include <string>

#include "tests/randomwalk/PanelUnderTest.h"

namespace tavrin::walk {

// What a panel would hand over for printing, by PPD keyword.
using Tickets = std::map<std::string, OptString>;

Tickets ticketsOf(PanelUnderTest& panel);

// How a panel's tickets differ from the expected ones, in a sentence; empty if they do not. If the
// controls were refreshed, the mirror may have followed the paper: on for iron-on, off for others.
std::string ticketsFault(Tickets expected, Tickets now, bool refreshed);

}  // namespace tavrin::walk
