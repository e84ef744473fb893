#pragma once

#include <string>
#include <vector>

#include "tests/randomwalk/Step.h"

// A walk in the words of a replay script.

namespace tavrin::walk {

// The step as a line of a replay script, with the answers that were used. For a panel that is
// reopened it is only the line that closes it.
std::string replayLines(const Step& step, const std::vector<Answer>& used);
// The line that asks a panel for its tickets, and one of those tickets.
std::string savingLine(int panel);
std::string ticketLine(int panel, const std::string& key, const OptString& ticket);
// The lines that open a panel on "printer-<panel>.ppd".
std::string openingLines(int panel, bool markDefaults);

}  // namespace tavrin::walk
