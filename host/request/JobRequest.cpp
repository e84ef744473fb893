#include "host/request/JobRequest.h"

namespace tavrin {

std::string jobTitle(const JobRequest& request) {
  return request.title.empty() ? documentName(request.document) : nameForPrinting(request.title);
}

std::string titleInWords(const JobRequest& request) {
  return request.title.empty() ? nameInWords(request.document) : jobTitle(request);
}

}  // namespace tavrin
