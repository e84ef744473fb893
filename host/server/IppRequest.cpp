#include "host/server/IppRequest.h"

#include <vector>

namespace tavrin {

namespace {

IppPtr requestAbout(ipp_op_t operation, const char* uriName, const std::string& uri) {
  IppPtr request(ippNewRequest(operation));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, uriName, nullptr, uri.c_str());
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  return request;
}

}  // namespace

IppPtr printerRequest(ipp_op_t operation, const std::string& queue) {
  char uri[HTTP_MAX_URI];
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof(uri), "ipp", nullptr, "localhost", 0,
                   "/printers/%s", queue.c_str());
  return requestAbout(operation, "printer-uri", uri);
}

IppPtr jobRequest(ipp_op_t operation, int jobId) {
  return requestAbout(operation, "job-uri", "ipp://localhost/jobs/" + std::to_string(jobId));
}

int integerIn(ipp_t& answer, const char* name) {
  ipp_attribute_t* attribute = ippFindAttribute(&answer, name, IPP_TAG_ZERO);
  const ipp_tag_t tag = ippGetValueTag(attribute);
  const bool isNumber = tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM;
  return isNumber ? ippGetInteger(attribute, 0) : 0;
}

bool booleanIn(ipp_t& answer, const char* name, bool fallback) {
  ipp_attribute_t* attribute = ippFindAttribute(&answer, name, IPP_TAG_BOOLEAN);
  return attribute ? ippGetBoolean(attribute, 0) != 0 : fallback;
}

std::string textIn(ipp_t& answer, const char* name) {
  ipp_attribute_t* attribute = ippFindAttribute(&answer, name, IPP_TAG_ZERO);
  return attribute ? valuesOf(*attribute) : "";
}

std::string valuesOf(ipp_attribute_t& attribute) {
  std::vector<char> buffer(ippAttributeString(&attribute, nullptr, 0) + 1);
  ippAttributeString(&attribute, buffer.data(), buffer.size());
  return buffer.data();
}

}  // namespace tavrin
