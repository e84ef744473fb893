#include "host/server/Destinations.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>
#include <string_view>
#include <utility>

#include "host/server/DestinationArray.h"
#include "host/server/IppRequest.h"
#include "host/server/SavedOptions.h"
#include "host/support/TextLists.h"
#include "platform/text/Quoted.h"
#include "ppd/PPDRecords.h"

namespace tavrin {

namespace {

constexpr std::size_t kMostPrinters = 10'000;
constexpr std::size_t kMostAttributes = 1'000;  // of a printer

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
  printer.description = text(destination, "printer-info");
  printer.location = text(destination, "printer-location");
  return printer;
}

// A printer that was merely seen on the network has no queue that a job could be sent to.
bool hasQueue(const cups_dest_t& destination) {
  const unsigned long type = std::strtoul(text(destination, "printer-type").c_str(), nullptr, 10);
  return (type & CUPS_PRINTER_DISCOVERED) == 0;
}

// The value as lp would have it; libcups' own writing has words for some numbers.
std::string optionValueOf(ipp_attribute_t& attribute) {
  const ipp_tag_t tag = ippGetValueTag(&attribute);
  if (tag == IPP_TAG_TEXT || tag == IPP_TAG_TEXTLANG) return textOf(attribute);  // for people
  if (tag != IPP_TAG_ENUM) return valuesOf(attribute);
  std::vector<std::string> numbers;
  numbers.reserve(static_cast<std::size_t>(ippGetCount(&attribute)));
  for (int i = 0; i < ippGetCount(&attribute); ++i)
    numbers.push_back(std::to_string(ippGetInteger(&attribute, i)));
  return joined(numbers, ",");
}

// The name of the option for which the attribute has the default; empty when it is none. As libcups
// has it: a quality is the printer's own option.
std::string defaultedOption(const std::string& name, ipp_tag_t tag) {
  constexpr std::string_view kSuffix = "-default";
  constexpr std::array kTags{IPP_TAG_INTEGER, IPP_TAG_ENUM, IPP_TAG_BOOLEAN,
                             IPP_TAG_KEYWORD, IPP_TAG_NAME, IPP_TAG_RANGE};
  const bool isDefault = name.ends_with(kSuffix) && !name.starts_with("notify-") &&
                         name != "print-quality-default" &&
                         std::ranges::find(kTags, tag) != kTags.end();
  return isDefault ? name.substr(0, name.size() - kSuffix.size()) : "";
}

void addOption(cups_dest_t& destination, ipp_attribute_t& attribute) {
  const std::string name = ippGetName(&attribute);
  const std::string option =
      describesPrinter(name) ? name : defaultedOption(name, ippGetValueTag(&attribute));
  if (!option.empty())
    destination.num_options = cupsAddOption(option.c_str(), optionValueOf(attribute).c_str(),
                                            destination.num_options, &destination.options);
}

using Attributes = std::vector<ipp_attribute_t*>;

void addPrinter(DestinationArray& destinations, const Attributes& attributes) {
  const auto isName = [](ipp_attribute_t* attribute) {
    return std::string_view(ippGetName(attribute)) == "printer-name";
  };
  const auto name = std::ranges::find_if(attributes, isName);
  if (name == attributes.end() || attributes.size() > kMostAttributes) return;
  cups_dest_t& destination = destinations.add(valuesOf(**name).c_str(), nullptr);
  for (ipp_attribute_t* attribute : attributes) addOption(destination, *attribute);
}

// The printers of an answer: a group of attributes each, with nameless ones between them. Adding
// takes longer the more there are, so that a server could keep us busy with printers that nobody
// has.
void addPrinters(DestinationArray& destinations, ipp_t& answer) {
  Attributes group;
  for (auto* next = ippFirstAttribute(&answer); next; next = ippNextAttribute(&answer)) {
    if (ippGetName(next) && ippGetGroupTag(next) == IPP_TAG_PRINTER) {
      group.push_back(next);
      continue;
    }
    addPrinter(destinations, std::exchange(group, {}));
    if (destinations.all().size() >= kMostPrinters) return;
  }
  addPrinter(destinations, group);
}

IppPtr requestFor(ipp_op_t operation, std::span<const char* const> attributes) {
  IppPtr request(ippNewRequest(operation));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                static_cast<int>(attributes.size()), nullptr, attributes.data());
  return request;
}

// False when the server does not answer; having no default is an answer.
bool addDefault(DestinationArray& destinations, PrintServer& server) {
  constexpr std::array kName{"printer-name"};
  const IppPtr answer = server.ask(requestFor(IPP_OP_CUPS_GET_DEFAULT, kName));
  if (answer) destinations.setDefault(textIn(*answer, "printer-name").c_str(), nullptr);
  return !server.gaveUp();
}

}  // namespace

Cancellable<std::vector<Printer>> readPrinters(const CancelFlag& cancel, Patience patience) {
  constexpr std::array kWanted{"printer-name",          "printer-type",
                               "printer-info",          "printer-location",
                               "printer-state",         "printer-state-message",
                               "printer-state-reasons", "printer-is-accepting-jobs",
                               "job-sheets-default",    "printer-defaults"};
  auto server = PrintServer::connect(cancel, patience);
  if (!server) return server.why();
  const IppPtr answer = server->ask(requestFor(IPP_OP_CUPS_GET_PRINTERS, kWanted));
  // The server says "not found" when it has no printers at all.
  if (!answer && server->answerStatus() == IPP_STATUS_ERROR_NOT_FOUND)
    return std::vector<Printer>();
  DestinationArray destinations;
  if (answer) addPrinters(destinations, *answer);
  if (!answer || !addDefault(destinations, *server))
    return server->noAnswer("The printers cannot be listed");
  addSavedOptions(destinations);
  std::vector<Printer> printers;
  for (const cups_dest_t& destination : destinations.all())
    if (hasQueue(destination)) printers.push_back(printerFrom(destination));
  return printers;
}

Cancellable<PrinterState> readPrinterState(const std::string& queue, const CancelFlag& cancel,
                                           Patience patience) {
  auto server = PrintServer::connect(cancel, patience);
  if (!server) return server.why();
  const IppPtr answer = server->ask(printerRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue));
  if (!answer && server->answerStatus() == IPP_STATUS_ERROR_NOT_FOUND)
    return PrinterState{.activity = PrinterState::Activity::gone};
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
