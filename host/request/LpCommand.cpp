#include "host/request/LpCommand.h"

#include "host/request/JobOptions.h"
#include "host/support/DestinationName.h"
#include "platform/text/IgnoringCase.h"
#include "platform/text/Quoted.h"

namespace tavrin {

std::string lpCommand(const JobRequest& request, const OptionList& options) {
  std::string command = "lp";
  if (!request.printer.empty())
    command += " -d " + shellQuoted(destinationName(request.printer, request.instance));
  if (request.copies > 1 || optionValue(options, kCopiesOption))
    command += " -n " + std::to_string(request.copies);
  if (!request.title.empty()) command += " -t " + shellQuoted(jobTitle(request));
  for (const auto& [name, value] : options)
    if (!equalIgnoringCase(name, kCopiesOption))
      command += " -o " + shellQuoted(optionArgument(name, value));
  return command + " -- " + shellQuoted(request.document.string());
}

}  // namespace tavrin
