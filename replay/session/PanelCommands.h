#pragma once

#include "platform/text/Result.h"
#include "replay/commands/Json.h"
#include "replay/commands/ReplayCommand.h"
#include "replay/session/PanelSession.h"

namespace tavrin {

// Carries out a command on an open panel. Gives the fields of the answer, or why it could not be
// done. Not for the verbs that need no open panel, or end one.
Result<Json> carryOutOnPanel(PanelSession& session, const ReplayCommand& command);

}  // namespace tavrin
