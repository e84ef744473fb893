#include "host/request/JobRequest.h"

namespace tavrin {

std::string jobTitle(const JobRequest& request) {
  return request.title.empty() ? documentName(request.document) : nameForPrinting(request.title);
}

}  // namespace tavrin
