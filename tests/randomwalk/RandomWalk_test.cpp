#include <cstdlib>
#include <iostream>
#include <numeric>

#include <gtest/gtest.h>

#include "tests/randomwalk/ReplayFolder.h"
#include "tests/randomwalk/Shrink.h"
#include "tests/randomwalk/Walk.h"

// Random walks through random printers of the family. The suite takes a few seconds of them;
//   TAVRIN_WALKS=10000 TAVRIN_WALK_STEPS=100 TAVRIN_WALK_SEED=1 randomwalk_test
// takes more; TAVRIN_WALK_REPLAYS=folder writes each walk as a replay. A walk that fails is shrunk
// and left as a replay below "randomwalk-failures".

namespace tavrin::walk {
namespace {

int number(const char* variable, int otherwise) {
  const char* value = std::getenv(variable);
  return value != nullptr ? std::atoi(value) : otherwise;
}

void print(const Figures& figures) {
  std::cout << figures.steps << " steps, " << figures.windows << " windows\n"
            << "code  closed  first  second  third\n";
  for (int code = 0; code < 13; ++code) {
    std::cout << code;
    for (int choice = 0; choice <= choicesOfWindow(windowOfCode(code)); ++choice) {
      const auto found = figures.answers.find({code, choice});
      std::cout << "\t" << (found != figures.answers.end() ? found->second : 0);
    }
    std::cout << "\n";
  }
}

void expectEveryAnswer(const Figures& figures) {
  for (int code = 0; code < 13; ++code) {
    for (int choice = 0; choice <= choicesOfWindow(windowOfCode(code)); ++choice) {
      EXPECT_TRUE(figures.answers.contains({code, choice}))
          << "code " << code << ", choice " << choice << " never came up";
    }
  }
}

TEST(RandomWalk, WhateverHappensThePanelKeepsItsPromises) {
  const int walks = number("TAVRIN_WALKS", 400);
  const int steps = number("TAVRIN_WALK_STEPS", 80);
  const int first = number("TAVRIN_WALK_SEED", 1);
  const char* const replays = std::getenv("TAVRIN_WALK_REPLAYS");
  Figures figures;
  for (int seed = first; seed < first + walks; ++seed) {
    const Plan plan = randomPlan(static_cast<unsigned>(seed), steps);
    const std::string fault = Walk(plan, figures).fault();
    if (replays != nullptr)
      writeReplay(plan, std::filesystem::path(replays) / std::to_string(seed));
    if (fault.empty()) continue;
    const std::string folder = "randomwalk-failures/seed-" + std::to_string(seed);
    FAIL() << "seed " << seed << ": " << fault
           << "\nshrunk: " << writeReplay(shrunk(plan), std::filesystem::absolute(folder));
  }
  print(figures);
  if (walks >= 400) expectEveryAnswer(figures);
}

TEST(Shrinking, KeepsWhatFailsAndNothingElse) {
  std::vector<int> list(100);
  std::iota(list.begin(), list.end(), 0);
  const auto fails = [](const std::vector<int>& items) {
    int needed = 0;
    for (const int item : items) needed += item == 3 || item == 42 || item == 99 ? 1 : 0;
    return needed == 3;
  };
  EXPECT_EQ(fewest(list, fails), (std::vector{3, 42, 99}));
  EXPECT_EQ(fewest(list, [](const auto&) { return true; }), std::vector<int>{});
  EXPECT_EQ(fewest(list, [&](const auto& items) { return items.size() == 100; }), list);
}

TEST(Plans, ASeedIsAlwaysTheSameWalk) {
  Figures one, two;
  EXPECT_EQ(Walk(randomPlan(7, 40), one).script(), Walk(randomPlan(7, 40), two).script());
  EXPECT_EQ(one.answers, two.answers);
  EXPECT_NE(randomPlan(7, 40).printers[0].ppd, randomPlan(8, 40).printers[0].ppd);
}

}  // namespace
}  // namespace tavrin::walk
