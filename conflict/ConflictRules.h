#pragma once

#include <vector>

#include "conflict/ConflictFacts.h"
#include "conflict/ConflictKind.h"

namespace tavrin {

// Two facts that the printer cannot honour together.
struct ConflictRule {
  int code;
  bool ConflictFacts::*one;
  bool ConflictFacts::*other;
  const ConflictKind* kind;
  // IGNORE_..._CONFLICT; null where the user cannot go on without resolving the conflict.
  const bool* isIgnored = nullptr;

  // Whether both facts hold, and the user has neither been shown the steps nor chosen to go on.
  bool clashesIn(const ConflictFacts& facts) const;
};

// The rules that those facts break, in the order of the table, which is their priority and that of
// their codes.
std::vector<const ConflictRule*> brokenRules(const ConflictFacts& facts);

}  // namespace tavrin
