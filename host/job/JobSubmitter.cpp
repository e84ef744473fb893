#include "host/job/JobSubmitter.h"

#include <array>

#include "host/server/IppRequest.h"
#include "host/server/PrintServer.h"
#include "host/support/CupsOptions.h"

namespace tavrin {

namespace {

// Options that say what the document is; the job has none of them.
constexpr char kFormatOption[] = "document-format";
constexpr char kRawOption[] = "raw";

constexpr Patience kShortPatience = std::chrono::seconds(3);

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
  bool startDocument(PrintServer& server);
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

// libcups' own call looks for the printer first, in a way that waits for minutes for a silent
// server.
Result<int> Delivery::create(PrintServer& server) {
  IppPtr creation = printerRequest(IPP_OP_CREATE_JOB, request.printer);
  ippAddString(creation.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
               jobTitle(request).c_str());
  for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION})
    cupsEncodeOptions2(creation.get(), options.count(), options.data(), group);
  const IppPtr answer = ask(server.http(), std::move(creation));
  jobId = answer ? integerIn(*answer, "job-id") : 0;
  if (jobId == 0) return failure(server);
  return jobId;
}

// As lp has it: what the options say, else what the document looks like.
std::string formatOf(const JobRequest& request, const Document& document) {
  if (const OptString raw = optionValue(request.options, kRawOption); raw && *raw != "false")
    return "application/vnd.cups-raw";
  return optionValue(request.options, kFormatOption).value_or(document.format());
}

bool Delivery::startDocument(PrintServer& server) {
  const IppPtr start = printerRequest(IPP_OP_SEND_DOCUMENT, request.printer);
  ippAddInteger(start.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
  ippAddString(start.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
               document.name().c_str());
  ippAddString(start.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
               formatOf(request, document).c_str());
  ippAddBoolean(start.get(), IPP_TAG_OPERATION, "last-document", 1);
  return cupsSendRequest(server.http(), start.get(), "/", CUPS_LENGTH_VARIABLE) ==
         HTTP_STATUS_CONTINUE;
}

Result<bool> Delivery::sendBytes(PrintServer& server, const ProgressCallback& progress) {
  std::array<char, 65536> buffer;
  for (Progress sent{0, document.size()}; !cancel;) {
    const auto bytes = document.read(buffer, cancel);
    if (!bytes) return Failure{bytes.reason()};
    if (*bytes == 0) return !cancel;
    server.refresh();  // it was the document that kept it waiting
    if (cupsWriteRequestData(server.http(), buffer.data(), *bytes) != HTTP_STATUS_CONTINUE)
      return failure(server);
    sent.done += *bytes;
    if (progress) progress(sent);
  }
  return false;
}

Result<bool> Delivery::send(PrintServer& server, const ProgressCallback& progress) {
  if (!startDocument(server)) return failure(server);
  auto sent = sendBytes(server, progress);
  if (!sent || !*sent) return sent;
  server.refresh();
  const IppPtr answer(cupsGetResponse(server.http(), "/"));
  if (!answer || cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE) return failure(server);
  return true;
}

// Takes a job back that is not whole, over a connection that is not in the middle of something.
// Empty, or what is left to do.
std::string takeBack(const JobRequest& request, int jobId) {
  const auto server = PrintServer::connect(neverCancelled(), kShortPatience);
  if (server && ask(server->http(), jobRequest(IPP_OP_CANCEL_JOB, jobId))) return {};
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
                             const CancelFlag& cancel, const ProgressCallback& progress,
                             Patience patience) {
  Submission submission{0, false, jobTitle(request), {}, {}};
  auto document = Document::open(request.document, cancel);
  if (!document) return Failure{document.reason()};
  auto server = PrintServer::connect(cancel, patience);
  if (!server) return Failure{server.reason()};

  OptionList ofJob = options;
  std::erase_if(ofJob, [](const auto& option) {
    return option.first == kFormatOption || option.first == kRawOption;
  });
  const CupsOptions array(ofJob);
  Delivery delivery(request, array, *document, cancel);
  submission.cancelled = cancel;
  if (submission.cancelled) return submission;
  const auto jobId = delivery.create(*server);
  submission.cancelled = !jobId && cancel;
  if (submission.cancelled) return submission;
  if (!jobId) return Failure{jobId.reason()};
  submission.jobId = *jobId;
  const auto sent = delivery.send(*server, progress);
  if (sent && *sent) {
    compare(*server, ofJob, submission);
    if (!cancel) return submission;
  }
  { const PrintServer closed = std::move(*server); }  // it may be in the middle of the document
  const std::string leftover = takeBack(request, *jobId);
  if (!sent && !cancel) return Failure{sent.reason() + leftover};
  if (!leftover.empty()) return Failure{"The job was cancelled here only." + leftover};
  submission.cancelled = true;
  return submission;
}

}  // namespace tavrin
