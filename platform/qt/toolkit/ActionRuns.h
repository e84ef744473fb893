#pragma once

#include <functional>
#include <utility>

namespace tavrin {

// Runs the actions of all panels and windows, and knows which of them is the outermost: while an
// action has a window up, the buttons of that window run actions inside it.
class ActionRuns {
 public:
  // What to do after each outermost action.
  explicit ActionRuns(std::function<void()> body) : outermostRan(std::move(body)) {}

  void run(const std::function<void()>& action) {
    ++depth;
    action();
    if (--depth == 0) outermostRan();
  }

 private:
  std::function<void()> outermostRan;
  int depth = 0;
};

}  // namespace tavrin
