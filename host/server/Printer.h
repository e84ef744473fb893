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
  OptionList options;  // the options that the person or the administrator keeps for it
};

inline std::string destinationName(const Printer& printer) {
  return destinationName(printer.name, printer.instance);
}

}  // namespace tavrin
