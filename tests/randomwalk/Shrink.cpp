#include "tests/randomwalk/Shrink.h"

#include <algorithm>
#include <fstream>

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

std::string writeReplay(const Plan& plan, const std::filesystem::path& folder) {
  Figures ignored;
  const Walk walk(plan, ignored);
  std::filesystem::create_directories(folder);
  std::ofstream script(folder / "script.jsonl");
  std::ofstream tickets(folder / "tickets.jsonl");
  script << walk.script();
  const auto atTheEnd = walk.tickets();
  for (std::size_t i = 0; i < plan.printers.size(); ++i) {
    const std::string number = std::to_string(i + 1);
    std::ofstream(folder / ("printer-" + number + ".ppd")) << plan.printers[i].ppd;
    script << savingLine(static_cast<int>(i));
    for (const auto& [key, ticket] : atTheEnd[i]) {
      tickets << ticketLine(static_cast<int>(i), key, ticket);
    }
  }
  std::filesystem::copy(
      walk.rootFolder(), folder / "root",
      std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing);
  return walk.fault() + "\n" + walk.script() + "In " + folder.string() +
         ": tavrin-replay --root root script.jsonl\n";
}

}  // namespace tavrin::walk
