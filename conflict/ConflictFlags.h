#pragma once

// What the process remembers of conflicts, for all panels together. All false at the start; read
// and written only here in conflict/.

namespace tavrin {

// The user asked for instructions: the conflict is not reported again until the next
// processConflict, which clears them.
extern bool HAS_MIRROR_INSTRUCTION;
extern bool HAS_PAGESPERSHEET_INSTRUCTION;
extern bool HAS_PRINTINBLACK_INSTRUCTION;
extern bool HAS_CARTINSTALLED_INSTRUCTION;
extern bool HAS_PAPERSIZE_INSTRUCTION;

// Which conflict a window is about; set when the window comes up, cleared by the OK handler that
// deals with it.
extern bool HAS_PAPERSIZE_CONFLICT;
extern bool HAS_PAGESPERSHEET_CONFLICT;
extern bool HAS_PRINTINBLACK_CONFLICT;
extern bool HAS_MIRROR_CONFLICT;
extern bool HAS_CARTINSTALLED_CONFLICT;

// The user goes on without resolving the conflict. Never reset: once somebody has decided so, no
// panel of this process asks again.
extern bool IGNORE_IRONON_DRAFT_CONFLICT;
extern bool IGNORE_IRONON_PAGESPERSHEET_CONFLICT;
extern bool IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT;
extern bool IGNORE_MIRROR_ENVELOPE_CONFLICT;

}  // namespace tavrin
