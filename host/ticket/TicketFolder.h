#pragma once

#include <filesystem>

#include "host/document/Progress.h"
#include "host/request/JobRequest.h"
#include "host/support/Cancellable.h"

namespace tavrin {

// Prints on a printer that has no queue: the job becomes a new folder in the output folder, with
// the document under its own name and "ticket.json" (ticketText). The folder appears whole or not
// at all; nothing that is there is overwritten. Gives the folder; the reason names what could not
// be read or written.
Cancellable<std::filesystem::path> writeTicketFolder(const std::filesystem::path& output,
                                                     const JobRequest& request,
                                                     const OptionList& options,
                                                     const CancelFlag& cancel = neverCancelled(),
                                                     const ProgressCallback& progress = {});

}  // namespace tavrin
