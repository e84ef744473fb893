#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/job/Document.h"
#include "host/job/JobRequest.h"
#include "platform/text/Result.h"

// A job's way to its queue and back: sent, then read again to see what arrived.

namespace tavrin {

// How a job went to its queue.
struct Submission {
  int jobId = 0;           // 0 when it was cancelled before there was one
  bool cancelled = false;  // the server has no job, or a cancelled one
  std::string title;
  // The options that the job does not have as they were sent, "NAME=VALUE" each.
  std::vector<std::string> missingOptions;
  // Not empty when the job could not be read back to look for its options: why.
  std::string notReadBack;
};

// A server that takes a job may be busy with others.
constexpr Patience kJobPatience = std::chrono::seconds(10);

using ProgressCallback = std::function<void(const Progress&)>;

// Sends the document to the request's queue with these options (see jobOptions), then reads the
// job back. Runs on any thread, tells the progress on that thread, and gives up when its
// patience since the server's last sign of life is over; once cancelled, soon. The reason names the
// printer or the document; no half-sent job stays in the queue.
Result<Submission> submitJob(const JobRequest& request, const OptionList& options,
                             const CancelFlag& cancel = neverCancelled(),
                             const ProgressCallback& progress = {},
                             Patience patience = kJobPatience);

}  // namespace tavrin
