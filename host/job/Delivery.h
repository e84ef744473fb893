#pragma once

#include "host/document/Document.h"
#include "host/document/Progress.h"
#include "host/request/JobRequest.h"
#include "host/server/PrintServer.h"

namespace tavrin {

// The options of a job as they go to the print server: without those that say what the document is.
OptionList optionsOfJob(OptionList options);

// One job on its way to its queue.
class Delivery {
 public:
  // Borrows them for its life.
  Delivery(const JobRequest& jobRequest, PrintServer& printServer)
      : request(jobRequest), server(printServer) {}

  // Makes the job, with no document yet. Its number.
  Cancellable<int> create(const OptionList& options);
  // Sends the document of the job that was made.
  Cancellable<Done> send(Document& document, const CancelFlag& cancel,
                         const ProgressCallback& progress);

 private:
  IppPtr sendRequest(const Document& document) const;
  std::string whatFailed() const;

  const JobRequest& request;
  PrintServer& server;
  int jobId = 0;
};

}  // namespace tavrin
