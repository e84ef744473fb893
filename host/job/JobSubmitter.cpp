#include "host/job/JobSubmitter.h"

#include "host/job/Delivery.h"
#include "host/server/IppRequest.h"
#include "host/server/PrintServer.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

constexpr Patience kShortPatience = std::chrono::seconds(3);

bool arrived(ipp_t& job, const std::string& name, const std::string& value) {
  ipp_attribute_t* there = ippFindAttribute(&job, name.c_str(), IPP_TAG_ZERO);
  // What was sent, with the type in which it travels.
  const IppPtr scratch(ippNew());
  ipp_attribute_t* sent = cupsEncodeOption(scratch.get(), IPP_TAG_JOB, name.c_str(), value.c_str());
  return there && sent && ippGetName(there) == name && valuesOf(*there) == valuesOf(*sent);
}

// The job as the server has it now, with the options that it lacks.
Cancellable<Submission> readBack(PrintServer& server, int jobId, const OptionList& options) {
  Submission submission{jobId, {}, {}};
  const IppPtr job = server.ask(jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, jobId));
  if (!job) {
    const NoValue why = server.noAnswer("The job could not be read back");
    if (std::holds_alternative<Cancelled>(why)) return why;
    submission.notReadBack = std::get<Failure>(why).reason;
    return submission;
  }
  for (const auto& [name, value] : options)
    if (!arrived(*job, name, value)) submission.missingOptions.push_back(name + "=" + value);
  return submission;
}

// Takes back a job that did not arrive as it should; the answer is why it did not, and what is left
// to do.
NoValue takeBack(const JobRequest& request, int jobId, const NoValue& why) {
  auto server = PrintServer::connect(neverCancelled(), kShortPatience);
  if (server && server->ask(jobRequest(IPP_OP_CANCEL_JOB, jobId))) return why;
  const auto* failure = std::get_if<Failure>(&why);
  const std::string reason =
      failure ? failure->reason : "The job was cancelled on this computer only.";
  const std::string name = request.printer + "-" + std::to_string(jobId);
  return Failure{reason + " The unfinished job " + name +
                 " is still in the queue; remove it with: cancel " + shellQuoted(name)};
}

}  // namespace

Cancellable<Submission> submitJob(const JobRequest& request, const OptionList& options,
                                  const CancelFlag& cancel, const ProgressCallback& progress,
                                  Patience patience) {
  auto document = Document::open(sentFile(request), cancel);
  if (!document) return document.why();
  auto server = PrintServer::connect(cancel, patience);
  if (!server) return server.why();
  const OptionList ofJob = optionsOfJob(options);
  Delivery delivery(request, *server);
  const auto jobId = delivery.create(ofJob);
  if (!jobId) return jobId.why();
  const auto sent = delivery.send(*document, cancel, progress);
  auto submission = sent ? readBack(*server, *jobId, ofJob) : Cancellable<Submission>(sent.why());
  if (submission && !cancel) return submission;
  // Over another connection: this one may be in the middle of the document.
  server = Cancelled{};
  return takeBack(request, *jobId, cancel ? Cancelled{} : submission.why());
}

}  // namespace tavrin
