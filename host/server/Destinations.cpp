#include "host/server/Destinations.h"

#include <cstdlib>
#include <string_view>

#include "host/server/IppRequest.h"
#include "platform/text/Quoted.h"
#include "ppd/PPDRecords.h"

namespace tavrin {

namespace {

// Owns the array that libcups makes of all destinations.
class DestinationArray {
 public:
  explicit DestinationArray(http_t* http) : count(cupsGetDests2(http, &first)) {}
  DestinationArray(const DestinationArray&) = delete;
  DestinationArray& operator=(const DestinationArray&) = delete;
  ~DestinationArray() { cupsFreeDests(count, first); }

  std::span<const cups_dest_t> all() const { return recordsIn(first, count); }

 private:
  cups_dest_t* first = nullptr;  // before the count, which is made with it
  int count;
};

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
  state.activity = activityFrom(std::atoi(text(destination, "printer-state").c_str()));
  state.acceptsJobs = text(destination, "printer-is-accepting-jobs") != "false";
  state.reasons = reasonsFrom(text(destination, "printer-state-reasons"));
  state.message = text(destination, "printer-state-message");
  return state;
}

OptionList optionsOf(const cups_dest_t& destination) {
  OptionList options;
  for (const cups_option_t& option : recordsIn(destination.options, destination.num_options))
    if (!describesPrinter(option.name)) options.emplace_back(option.name, option.value);
  return options;
}

Printer printerFrom(const cups_dest_t& destination) {
  Printer printer;
  printer.name = destination.name;
  printer.instance = destination.instance ? destination.instance : "";
  printer.isDefault = destination.is_default != 0;
  printer.state = stateOf(destination);
  printer.options = optionsOf(destination);
  return printer;
}

// A printer that was merely seen on the network has no queue that a job could be sent to.
bool hasQueue(const cups_dest_t& destination) {
  const unsigned long type = std::strtoul(text(destination, "printer-type").c_str(), nullptr, 10);
  return (type & CUPS_PRINTER_DISCOVERED) == 0;
}

bool failed(const PrintServer& server) {
  // The server says "not found" when it has no printers at all.
  return server.gaveUp() || (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE &&
                             cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND);
}

}  // namespace

Cancellable<std::vector<Printer>> readPrinters(const CancelFlag& cancel, Patience patience) {
  const auto server = PrintServer::connect(cancel, patience);
  if (!server) return server.why();
  const DestinationArray destinations(server->http());
  std::vector<Printer> printers;
  for (const cups_dest_t& destination : destinations.all())
    if (hasQueue(destination)) printers.push_back(printerFrom(destination));
  if (printers.empty() && failed(*server)) return server->noAnswer("The printers cannot be listed");
  return printers;
}

Cancellable<PrinterState> readPrinterState(const std::string& queue, const CancelFlag& cancel,
                                           Patience patience) {
  const auto server = PrintServer::connect(cancel, patience);
  if (!server) return server.why();
  const IppPtr answer = ask(server->http(), printerRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue));
  if (!answer)
    return server->noAnswer("The printer " + quoted(queue) + " cannot be asked for its state");
  PrinterState state;
  state.activity = activityFrom(integerIn(*answer, "printer-state"));
  state.acceptsJobs = booleanIn(*answer, "printer-is-accepting-jobs", true);
  state.reasons = reasonsFrom(textIn(*answer, "printer-state-reasons"));
  state.message = textIn(*answer, "printer-state-message");
  return state;
}

}  // namespace tavrin
