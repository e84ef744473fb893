#pragma once

#include <vector>

#include "tests/randomwalk/Printer.h"
#include "tests/randomwalk/Step.h"

namespace tavrin::walk {

// Everything on which a walk depends.
struct Plan {
  std::vector<Printer> printers;  // one panel each
  CartridgeSet cartridges;
  std::vector<Step> steps;
};

Plan randomPlan(unsigned seed, int steps);

}  // namespace tavrin::walk
