#include "tests/randomwalk/Shrink.h"

#include <utility>

#include "tests/randomwalk/Walk.h"

namespace tavrin::walk {
namespace {

bool fails(const Plan& plan) {
  Figures ignored;
  return !Walk(plan, ignored).fault().empty();
}

// Tries the plan with one part of it changed; keeps the change if it still fails.
template <class Change>
void tryWith(Plan& plan, Change change) {
  Plan candidate = plan;
  change(candidate);
  if (fails(candidate)) plan = std::move(candidate);
}

}  // namespace

Plan shrunk(const Plan& failing) {
  Plan plan = failing;
  plan.steps = fewest(plan.steps, [&](const std::vector<Step>& steps) {
    return fails({plan.printers, plan.cartridges, steps});
  });
  for (std::size_t i = 0; i < plan.steps.size(); ++i) {
    plan.steps[i].answers = fewest(plan.steps[i].answers, [&](const std::vector<Answer>& answers) {
      Plan candidate = plan;
      candidate.steps[i].answers = answers;
      return fails(candidate);
    });
    for (std::size_t j = 0; j < plan.steps[i].answers.size(); ++j) {
      tryWith(plan, [&](Plan& candidate) { candidate.steps[i].answers[j].choices.clear(); });
    }
  }
  tryWith(plan, [](Plan& candidate) { candidate.cartridges = {}; });
  tryWith(plan, [](Plan& candidate) { candidate.printers.resize(1); });
  return plan;
}

}  // namespace tavrin::walk
