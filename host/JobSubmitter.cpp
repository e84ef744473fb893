#include "host/JobSubmitter.h"

#include <array>

#include "host/CupsOptions.h"
#include "host/IppRequest.h"
#include "host/PrintServer.h"

namespace tavrin {

namespace {

constexpr PrintServer::Seconds kPatience(10);
constexpr PrintServer::Seconds kShortPatience(3);

// One job on its way to its queue.
class Delivery {
 public:
  Delivery(const JobRequest& jobRequest, const CupsOptions& jobOptionArray, Document& source,
           const CancelFlag& cancelFlag)
      : request(jobRequest), options(jobOptionArray), document(source), cancel(cancelFlag) {}

  // The job's number, or why the job did not come about.
  Result<int> create(PrintServer& server);
  // Sends the document; false once cancelled.
  Result<bool> send(PrintServer& server, const ProgressCallback& progress);

 private:
  Result<bool> sendBytes(PrintServer& server, const ProgressCallback& progress);
  Failure failure(const PrintServer& server) const;

  const JobRequest& request;
  const CupsOptions& options;
  Document& document;
  const CancelFlag& cancel;
  int jobId = 0;
};

Failure Delivery::failure(const PrintServer& server) const {
  return server.failure("\"" + jobTitle(request) + "\" could not be printed on \"" +
                        request.printer + "\"");
}

Result<int> Delivery::create(PrintServer& server) {
  jobId = cupsCreateJob(server.http(), request.printer.c_str(), jobTitle(request).c_str(),
                        options.count(), options.data());
  if (jobId == 0) return failure(server);
  return jobId;
}

Result<bool> Delivery::sendBytes(PrintServer& server, const ProgressCallback& progress) {
  std::array<char, 65536> buffer;
  for (Progress sent{0, document.size()}; !cancel;) {
    const auto bytes = document.read(buffer, cancel);
    if (!bytes) return Failure{bytes.reason()};
    if (*bytes == 0) return !cancel;
    if (cupsWriteRequestData(server.http(), buffer.data(), *bytes) != HTTP_STATUS_CONTINUE)
      return failure(server);
    server.refresh();
    sent.done += *bytes;
    if (progress) progress(sent);
  }
  return false;
}

Result<bool> Delivery::send(PrintServer& server, const ProgressCallback& progress) {
  const http_status_t started =
      cupsStartDocument(server.http(), request.printer.c_str(), jobId, document.name().c_str(),
                        document.format().c_str(), 1);
  if (started != HTTP_STATUS_CONTINUE) return failure(server);
  auto sent = sendBytes(server, progress);
  if (!sent || !*sent) return sent;
  server.refresh();
  if (cupsFinishDocument(server.http(), request.printer.c_str()) > IPP_STATUS_OK_EVENTS_COMPLETE)
    return failure(server);
  return true;
}

// Takes a job back that is not whole, over a connection that is not in the middle of something.
// Empty, or what is left to do.
std::string takeBack(const JobRequest& request, int jobId) {
  const auto server = PrintServer::connect(neverCancelled(), kShortPatience);
  if (server && cupsCancelJob2(server->http(), request.printer.c_str(), jobId, 0) <=
                    IPP_STATUS_OK_EVENTS_COMPLETE)
    return {};
  const std::string name = request.printer + "-" + std::to_string(jobId);
  return " The unfinished job " + name + " is still in the queue; remove it with: cancel " + name;
}

bool arrived(ipp_t& job, const std::string& name, const std::string& value) {
  ipp_attribute_t* there = ippFindAttribute(&job, name.c_str(), IPP_TAG_ZERO);
  // What was sent, with the type that it has on its way.
  const IppPtr scratch(ippNew());
  ipp_attribute_t* sent = cupsEncodeOption(scratch.get(), IPP_TAG_JOB, name.c_str(), value.c_str());
  return there && sent && ippGetName(there) == name && valuesOf(*there) == valuesOf(*sent);
}

// Reads the job back and writes down which options it lacks.
void compare(PrintServer& server, const OptionList& options, Submission& submission) {
  server.refresh();
  const IppPtr job = ask(server.http(), jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, submission.jobId));
  if (!job) {
    submission.notReadBack = server.failure("The job could not be read back").reason;
    return;
  }
  for (const auto& [name, value] : options)
    if (!arrived(*job, name, value)) submission.missingOptions.push_back(name + "=" + value);
}

}  // namespace

Result<Submission> submitJob(const JobRequest& request, const OptionList& options,
                             const CancelFlag& cancel, const ProgressCallback& progress) {
  Submission submission{0, false, jobTitle(request), {}, {}};
  auto document = Document::open(request.document, cancel);
  if (!document) return Failure{document.reason()};
  auto server = PrintServer::connect(cancel, kPatience);
  if (!server) return Failure{server.reason()};

  const CupsOptions array(options);
  Delivery delivery(request, array, *document, cancel);
  submission.cancelled = cancel;
  if (submission.cancelled) return submission;
  const auto jobId = delivery.create(*server);
  if (!jobId) return Failure{jobId.reason()};
  submission.jobId = *jobId;
  const auto sent = delivery.send(*server, progress);
  if (sent && *sent) {
    compare(*server, options, submission);
    return submission;
  }
  { const PrintServer closed = std::move(*server); }  // it may be in the middle of the document
  const std::string leftover = takeBack(request, *jobId);
  if (!sent && !cancel) return Failure{sent.reason() + leftover};
  if (!leftover.empty()) return Failure{"The job was cancelled here only." + leftover};
  submission.cancelled = true;
  return submission;
}

}  // namespace tavrin
