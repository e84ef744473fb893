#pragma once

#include <string>
#include <vector>

#include "host/document/Progress.h"
#include "host/request/JobRequest.h"
#include "host/support/Cancellable.h"

// A job's way to its queue and back: sent (Delivery), then read again to see what arrived.

namespace tavrin {

// A job that is in its queue.
struct Submission {
  int jobId = 0;
  // The options that the job does not have as they were sent, "NAME=VALUE" each.
  std::vector<std::string> missingOptions;
  // Not empty when the job could not be read back to look for its options: why.
  std::string notReadBack;
};

// A server that takes a job may be busy with others.
inline constexpr Patience kJobPatience = std::chrono::seconds(10);

// Sends the document to the request's queue with these options (see jobOptions), then reads the
// job back. Runs on any thread, tells the progress on that thread, and gives up when its
// patience since the server's last sign of life is over; once cancelled, soon. The reason names the
// printer or the document. Without a value no job stays in the queue, or the reason says which.
Cancellable<Submission> submitJob(const JobRequest& request, const OptionList& options,
                                  const CancelFlag& cancel = neverCancelled(),
                                  const ProgressCallback& progress = {},
                                  Patience patience = kJobPatience);

}  // namespace tavrin
