#pragma once

#include "platform/text/Result.h"
#include "replay/Json.h"
#include "replay/PanelSession.h"
#include "replay/ReplayCommand.h"

namespace tavrin {

// Carries out a command on an open panel. Gives the fields of the answer, or why it could not be
// done. Not for the verbs that need no open panel, or end one.
Result<Json> carryOutOnPanel(PanelSession& session, const ReplayCommand& command);

}  // namespace tavrin
