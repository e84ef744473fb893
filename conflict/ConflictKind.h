#pragma once

#include <array>

#include "conflict/InstructionTexts.h"

namespace tavrin {

class PDEModel;

// The windows that conflicts are shown in.
enum class MessageWindow { msgOne, msgTwo, msgFive };

// A kind of conflict: the window that shows it, and what each way out of it does.
struct ConflictKind {
  MessageWindow window;
  // Its number among the kinds of its window, by which composeMsgTwo and composeMsgFive know it.
  int numberInWindow;

  // HAS_..._CONFLICT: it was shown and not dealt with yet. An OK deals with every kind of its
  // window that is flagged, also with those that a closed window or another panel left behind.
  // Null for the one kind of MsgOne: that window's OK is about nothing else.
  bool* isShown;
  // HAS_..._INSTRUCTION, set when the steps are shown; null for a kind without steps.
  bool* isInstructed;
  InstructionKind steps;

  // What each Choice does to the settings, or to what the process remembers to ignore. Null where
  // the choice shows the steps, and where the window has no such choice.
  std::array<void (*)(PDEModel&), 3> waysOut;

  // Whether an OK of that window is about this kind. From now on it counts as dealt with.
  bool takeShown(MessageWindow answered) const;
};

extern const ConflictKind kIronOnAtDraft;
extern const ConflictKind kMirroredEnvelope;
extern const ConflictKind kPagesPerSheet;
extern const ConflictKind kPrintInBlack;
extern const ConflictKind kCartridges;
extern const ConflictKind kPaperSize;

// All of them. An OK that is about several shows the steps of the last one here.
extern const ConflictKind* const kConflictKinds[6];

}  // namespace tavrin
