#include "host/job/JobRequest.h"

namespace tavrin {

std::string jobTitle(const JobRequest& request) {
  if (!request.title.empty()) return request.title;
  return request.document == "-" ? "(stdin)" : request.document.filename().string();
}

}  // namespace tavrin
