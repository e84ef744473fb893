#include "host/task/PrinterList.h"

#include <algorithm>

namespace tavrin {

const Printer* PrinterList::chosen() const { return index ? &all[*index] : nullptr; }

void PrinterList::choose(std::size_t place) { index = place; }

bool PrinterList::choose(const std::string& destination) {
  const auto found = std::ranges::find_if(all, [&](const Printer& printer) {
    return destination.empty() ? printer.isDefault : destinationName(printer) == destination;
  });
  index.reset();
  if (found != all.end())
    index = static_cast<std::size_t>(found - all.begin());
  else if (destination.empty() && !all.empty())
    index = 0;
  return index.has_value();
}

void PrinterList::setState(const std::string& queue, const PrinterState& state) {
  for (Printer& printer : all)
    if (printer.name == queue) printer.state = state;
}

}  // namespace tavrin
