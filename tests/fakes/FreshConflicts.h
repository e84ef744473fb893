#pragma once

#include "conflict/ConflictFlags.h"

// A process that has seen no conflict yet: a test that answers windows must not be heard by the
// next one.

namespace tavrin {

inline bool* const kInstructionFlags[] = {
    &HAS_MIRROR_INSTRUCTION, &HAS_PAGESPERSHEET_INSTRUCTION, &HAS_PRINTINBLACK_INSTRUCTION,
    &HAS_CARTINSTALLED_INSTRUCTION, &HAS_PAPERSIZE_INSTRUCTION};
inline bool* const kConflictFlags[] = {&HAS_PAPERSIZE_CONFLICT, &HAS_PAGESPERSHEET_CONFLICT,
                                       &HAS_PRINTINBLACK_CONFLICT, &HAS_MIRROR_CONFLICT,
                                       &HAS_CARTINSTALLED_CONFLICT};
inline bool* const kIgnoreFlags[] = {
    &IGNORE_IRONON_DRAFT_CONFLICT, &IGNORE_IRONON_PAGESPERSHEET_CONFLICT,
    &IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT, &IGNORE_MIRROR_ENVELOPE_CONFLICT};

inline void forgetConflicts() {
  for (bool* flag : kInstructionFlags) *flag = false;
  for (bool* flag : kConflictFlags) *flag = false;
  for (bool* flag : kIgnoreFlags) *flag = false;
}

// How many of a list of flags are set.
template <class Flags>
int countSet(const Flags& flags) {
  int count = 0;
  for (const bool* flag : flags) count += *flag ? 1 : 0;
  return count;
}

struct FreshConflicts {
  FreshConflicts() { forgetConflicts(); }
  ~FreshConflicts() { forgetConflicts(); }
  FreshConflicts(const FreshConflicts&) = delete;
  FreshConflicts& operator=(const FreshConflicts&) = delete;
};

}  // namespace tavrin
