#pragma once

#include <string>

#include "host/server/PrinterState.h"
#include "host/support/DestinationName.h"
#include "host/support/OptionList.h"

namespace tavrin {

// A printer that a person can pick: a queue, or an instance of one.
struct Printer {
  std::string name;
  std::string instance;  // empty for the queue itself
  bool isDefault = false;
  PrinterState state;
  OptionList options;       // the options that the person or the administrator keeps for it
  std::string description;  // what people call the queue; may be empty
  std::string location;     // where it stands; may be empty
};

inline std::string destinationName(const Printer& printer) {
  return destinationName(printer.name, printer.instance);
}

// The printer as a person knows it: "Photo printer", and "Photo printer (draft)" for an instance.
inline std::string titleOf(const Printer& printer) {
  const std::string& queue = printer.description.empty() ? printer.name : printer.description;
  return printer.instance.empty() ? queue : queue + " (" + printer.instance + ")";
}

}  // namespace tavrin
