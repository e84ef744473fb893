#include "host/server/Destinations.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

#include "host/printer/PPDLoader.h"
#include "host/server/IppRequest.h"
#include "host/server/PrintServer.h"
#include "host/support/FileDescriptor.h"

namespace tavrin {

namespace {

using Activity = PrinterState::Activity;

Activity activityOf(int ippState) {
  switch (ippState) {
    case IPP_PSTATE_IDLE:
      return Activity::idle;
    case IPP_PSTATE_PROCESSING:
      return Activity::printing;
    case IPP_PSTATE_STOPPED:
      return Activity::stopped;
    default:
      return Activity::unknown;
  }
}

std::vector<std::string> splitReasons(const std::string& list) {
  std::vector<std::string> reasons;
  for (std::size_t start = 0; start < list.size();) {
    const std::size_t end = std::min(list.find(',', start), list.size());
    const std::string reason = list.substr(start, end - start);
    if (!reason.empty() && reason != "none") reasons.push_back(reason);
    start = end + 1;
  }
  return reasons;
}

// Whether it describes the printer; all else that libcups keeps with a destination is an option.
bool describesPrinter(std::string_view name) {
  return name.starts_with("printer-") || name.starts_with("marker-") || name == "device-uri" ||
         name == "auth-info-required";
}

std::string text(const cups_dest_t& destination, const char* name) {
  const char* value = cupsGetOption(name, destination.num_options, destination.options);
  return value ? value : "";
}

PrinterState stateOf(const cups_dest_t& destination) {
  PrinterState state;
  state.activity = activityOf(std::atoi(text(destination, "printer-state").c_str()));
  state.acceptsJobs = text(destination, "printer-is-accepting-jobs") != "false";
  state.reasons = splitReasons(text(destination, "printer-state-reasons"));
  state.message = text(destination, "printer-state-message");
  return state;
}

Printer printerFrom(const cups_dest_t& destination) {
  Printer printer;
  printer.name = destination.name;
  printer.instance = destination.instance ? destination.instance : "";
  printer.isDefault = destination.is_default != 0;
  printer.info = text(destination, "printer-info");
  printer.location = text(destination, "printer-location");
  printer.state = stateOf(destination);
  for (const cups_option_t& option :
       std::span(destination.options, static_cast<std::size_t>(destination.num_options)))
    if (!describesPrinter(option.name)) printer.options.emplace_back(option.name, option.value);
  return printer;
}

// A printer that was merely seen in the network has no queue that a job could be sent to.
bool hasQueue(const cups_dest_t& destination) {
  const unsigned long type = std::strtoul(text(destination, "printer-type").c_str(), nullptr, 10);
  return (type & CUPS_PRINTER_DISCOVERED) == 0;
}

bool failed(const PrintServer& server) {
  // The server says "not found" when it has no printers at all.
  return server.ranOut() || server.cancelled() ||
         (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE &&
          cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND);
}

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : ", ") + word;
  return text;
}

// A reason's keyword in words: "media-empty-warning" is "media empty (warning)".
std::string reasonText(std::string reason) {
  std::string severity;
  for (const char* suffix : {"-report", "-warning", "-error"}) {
    if (!reason.ends_with(suffix)) continue;
    severity = suffix + 1;
    reason.resize(reason.size() - severity.size() - 1);
    break;
  }
  std::replace(reason.begin(), reason.end(), '-', ' ');
  return severity == "warning" ? reason + " (warning)" : reason;
}

const char* activityText(Activity activity) {
  switch (activity) {
    case Activity::idle:
      return "Idle";
    case Activity::printing:
      return "Printing";
    case Activity::stopped:
      return "Stopped";
    case Activity::unknown:
      break;
  }
  return "State unknown";
}

// A queue named like this could ask for another file of the server.
bool fitsInPath(const std::string& queue) {
  return !queue.empty() && std::none_of(queue.begin(), queue.end(), [](char c) {
    return (static_cast<unsigned char>(c) <= ' ') || c == '/' || c == '?' || c == '#' || c == '%' ||
           c == '\x7f';
  });
}

std::string named(const std::string& queue) { return "The printer \"" + queue + "\""; }

http_status_t get(http_t* http, const std::string& resource) {
  httpClearFields(http);
  if (httpGet(http, resource.c_str()) != 0) return HTTP_STATUS_ERROR;
  http_status_t status = HTTP_STATUS_CONTINUE;
  while (status == HTTP_STATUS_CONTINUE) status = httpUpdate(http);
  return status;
}

// Copies what the server sends; false when it breaks off or sends more than a PPD can be.
bool receive(PrintServer& server, int file) {
  std::array<char, 65536> buffer;
  std::size_t total = 0;
  for (;;) {
    const ssize_t bytes = httpRead2(server.http(), buffer.data(), buffer.size());
    if (bytes <= 0) return bytes == 0 && !server.ranOut() && !server.cancelled();
    total += static_cast<std::size_t>(bytes);
    if (total > kPPDFileLimit ||
        write(file, buffer.data(), static_cast<std::size_t>(bytes)) != bytes)
      return false;
  }
}

}  // namespace

std::string destinationName(const std::string& queue, const std::string& instance) {
  return instance.empty() ? queue : queue + "/" + instance;
}

std::string destinationName(const Printer& printer) {
  return destinationName(printer.name, printer.instance);
}

std::string stateText(const PrinterState& state) {
  std::vector<std::string> reasons;
  // "paused" is what stopped means.
  for (const std::string& reason : state.reasons)
    if (reason != "paused") reasons.push_back(reasonText(reason));
  // "Paused" is all that the server says of a printer that somebody stopped.
  const bool isExplained = !state.message.empty() && state.message != "Paused";
  if (reasons.empty() && state.activity == Activity::stopped && isExplained)
    reasons.push_back(state.message);
  std::string words = activityText(state.activity);
  if (!state.acceptsJobs) words += ", not accepting jobs";
  if (!reasons.empty()) words += ": " + joined(reasons);
  return words;
}

Result<std::vector<Printer>> readPrinters(const CancelFlag& cancel, Patience patience) {
  auto server = PrintServer::connect(cancel, patience);
  if (!server) return Failure{server.reason()};
  cups_dest_t* destinations = nullptr;
  const int count = cupsGetDests2(server->http(), &destinations);
  std::vector<Printer> printers;
  for (const cups_dest_t& destination : std::span(destinations, static_cast<std::size_t>(count)))
    if (hasQueue(destination)) printers.push_back(printerFrom(destination));
  cupsFreeDests(count, destinations);
  if (printers.empty() && failed(*server)) return server->failure("The printers cannot be listed");
  return printers;
}

Result<PrinterState> readPrinterState(const std::string& queue, const CancelFlag& cancel,
                                      Patience patience) {
  auto server = PrintServer::connect(cancel, patience);
  if (!server) return Failure{server.reason()};
  const IppPtr answer = ask(server->http(), printerRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue));
  if (!answer) return server->failure(named(queue) + " cannot be asked for its state");
  PrinterState state;
  state.activity = activityOf(integerIn(*answer, "printer-state"));
  state.acceptsJobs = booleanIn(*answer, "printer-is-accepting-jobs", true);
  state.message = textIn(*answer, "printer-state-message");
  state.reasons = splitReasons(textIn(*answer, "printer-state-reasons"));
  return state;
}

Result<PPDPtr> readPrinterPPD(const std::string& queue, const CancelFlag& cancel,
                              Patience patience) {
  if (!fitsInPath(queue)) return Failure{"\"" + queue + "\" is not the name of a printer."};
  auto server = PrintServer::connect(cancel, patience);
  if (!server) return Failure{server.reason()};
  const std::string what = "The description of the printer \"" + queue + "\" cannot be read";
  const http_status_t status = get(server->http(), "/printers/" + queue + ".ppd");
  if (status == HTTP_STATUS_NOT_FOUND)
    return Failure{named(queue) + " does not exist or has no PPD."};
  if (server->ranOut() || server->cancelled()) return server->failure(what);
  if (status != HTTP_STATUS_OK)
    return Failure{what + ": the print server says \"" + httpStatus(status) + "\"."};
  // A file of memory: nobody else can open it, and nothing is left behind.
  const FileDescriptor file(memfd_create("ppd", MFD_CLOEXEC));
  if (!receive(*server, file.get())) {
    if (server->ranOut() || server->cancelled()) return server->failure(what);
    return Failure{what + ": it is too large or was not sent whole."};
  }
  return loadPPD(file.get(), queue);
}

}  // namespace tavrin
