#pragma once

#include <filesystem>
#include <string>

#include "tests/randomwalk/Plan.h"

namespace tavrin::walk {

// Writes the walk of a plan as a replay: script.jsonl, the PPDs, the root folder with the cartridge
// preferences, and tickets.jsonl with what each panel hands over at the end. Gives the fault and
// the script.
std::string writeReplay(const Plan& plan, const std::filesystem::path& folder);

}  // namespace tavrin::walk
