#include "host/request/JobRequest.h"

namespace tavrin {

const std::filesystem::path& sentFile(const JobRequest& request) {
  return request.prepared.empty() ? request.document : request.prepared;
}

std::string jobTitle(const JobRequest& request) {
  return request.title.empty() ? documentName(request.document) : nameForPrinting(request.title);
}

std::string titleInWords(const JobRequest& request) {
  return request.title.empty() ? nameInWords(request.document) : jobTitle(request);
}

}  // namespace tavrin
