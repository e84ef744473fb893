#pragma once

#include <filesystem>

#include "host/job/JobSubmitter.h"

namespace tavrin {

// Prints on a printer that has no queue: the job becomes a new folder in the output folder, with
// the document under its own name and "ticket.json" (title, copies, page ranges, options, the
// equivalent lp command). The folder appears whole or not at all; nothing that is there is
// overwritten. Gives the folder, an empty path once cancelled; the reason names what could not be
// read or written.
Result<std::filesystem::path> writeTicketFolder(const std::filesystem::path& output,
                                                const JobRequest& request,
                                                const OptionList& options,
                                                const CancelFlag& cancel = neverCancelled(),
                                                const ProgressCallback& progress = {});

}  // namespace tavrin
