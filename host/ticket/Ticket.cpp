#include "host/ticket/Ticket.h"

#include <nlohmann/json.hpp>

#include "host/request/LpCommand.h"

namespace tavrin {

std::string ticketText(const JobRequest& request, const std::string& document,
                       const std::string& format, const OptionList& options) {
  using Json = nlohmann::ordered_json;
  Json ticket;
  ticket["title"] = jobTitle(request);
  ticket["document"] = document;
  ticket["format"] = format;
  ticket["copies"] = request.copies;
  ticket["ranges"] = request.pageRanges.empty() ? Json() : Json(request.pageRanges);
  ticket["options"] = Json::object();
  for (const auto& [name, value] : options) ticket["options"][name] = value;
  JobRequest inFolder = request;
  inFolder.document = document;
  ticket["command"] = lpCommand(inFolder, options);
  // An option may hold any bytes, JSON may not.
  return ticket.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace tavrin
