#include "host/job/Delivery.h"

#include "host/request/JobOptions.h"
#include "host/server/IppRequest.h"
#include "host/support/CupsOptions.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

// As lp has it: what the options say, else what the document looks like.
std::string sentFormat(const JobRequest& request, const Document& document) {
  if (const OptString raw = optionValue(request.options, kRawOption); raw && *raw != "false")
    return "application/vnd.cups-raw";
  return optionValue(request.options, kFormatOption).value_or(document.format());
}

}  // namespace

OptionList optionsOfJob(OptionList options) {
  for (const char* name : {kFormatOption, kRawOption}) removeOption(options, name);
  return options;
}

// libcups' own call looks for the printer first, in a way that waits for minutes for a silent
// server.
Cancellable<int> Delivery::create(const OptionList& options) {
  IppPtr creation = printerRequest(IPP_OP_CREATE_JOB, request.printer);
  ippAddString(creation.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
               jobTitle(request).c_str());
  const CupsOptions array(options);
  for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION})
    cupsEncodeOptions2(creation.get(), array.count(), array.data(), group);
  const IppPtr answer = server.ask(std::move(creation));
  jobId = answer ? integerIn(*answer, "job-id") : 0;
  if (jobId == 0) return server.noAnswer(whatFailed());
  return jobId;
}

Cancellable<Done> Delivery::send(Document& document, const CancelFlag& cancel,
                                 const ProgressCallback& progress) {
  if (!server.beginDocument(sendRequest(document))) return server.noAnswer(whatFailed());
  const auto sendPiece = [this](std::span<const char> bytes) -> Cancellable<Done> {
    if (!server.sendDocument(bytes)) return server.noAnswer(whatFailed());
    return Done{};
  };
  if (auto sent = document.readAll(sendPiece, cancel, progress); !sent) return sent;
  if (!server.endDocument()) return server.noAnswer(whatFailed());
  return Done{};
}

IppPtr Delivery::sendRequest(const Document& document) const {
  IppPtr sending = printerRequest(IPP_OP_SEND_DOCUMENT, request.printer);
  ippAddInteger(sending.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
  ippAddString(sending.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
               documentName(request.document).c_str());
  ippAddString(sending.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, kFormatOption, nullptr,
               sentFormat(request, document).c_str());
  ippAddBoolean(sending.get(), IPP_TAG_OPERATION, "last-document", 1);
  return sending;
}

std::string Delivery::whatFailed() const {
  const bool isNamed = !request.title.empty() || request.document != kStandardInput;
  return (isNamed ? quoted(jobTitle(request)) : "Standard input") + " could not be printed on " +
         quoted(request.printer);
}

}  // namespace tavrin
