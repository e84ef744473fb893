#include "host/server/Printer.h"

namespace tavrin {

std::string destinationName(const std::string& queue, const std::string& instance) {
  return instance.empty() ? queue : queue + "/" + instance;
}

std::string destinationName(const Printer& printer) {
  return destinationName(printer.name, printer.instance);
}

}  // namespace tavrin
