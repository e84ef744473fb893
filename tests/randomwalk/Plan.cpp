#include "tests/randomwalk/Plan.h"

namespace tavrin::walk {

Plan randomPlan(unsigned seed, int steps) {
  Dice dice(seed);
  Plan plan;
  const int panels = chance(dice, 30) ? 2 : 1;
  for (int i = 0; i < panels; ++i) plan.printers.push_back(randomPrinter(dice));
  plan.cartridges = randomCartridges(dice);
  plan.steps = randomSteps(dice, steps, panels);
  return plan;
}

}  // namespace tavrin::walk
