#pragma once

#include <filesystem>

#include "host/document/Progress.h"
#include "host/request/JobRequest.h"
#include "host/support/Cancellable.h"
#include "platform/text/Result.h"

namespace tavrin {

// Prints on a printer that has no queue: the job becomes a new folder in the output folder, with
// the document under its own name and "ticket.json" (ticketText). The folder appears whole or not
// at all; nothing that is there is overwritten. Gives the folder, or why it cannot be written: then
// another output folder helps. Fails when the document cannot be read, whose name the reason has.
Cancellable<Result<std::filesystem::path>> writeTicketFolder(
    const std::filesystem::path& output, const JobRequest& request, const OptionList& options,
    const CancelFlag& cancel = neverCancelled(), const ProgressCallback& progress = {});

}  // namespace tavrin
