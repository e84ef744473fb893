#include "host/task/PrinterList.h"

#include <algorithm>

namespace tavrin {

PrinterList::PrinterList(std::vector<Printer> printers) {
  for (Printer& printer : printers) {
    std::string state = stateText(printer.state);
    all.push_back({std::move(printer), std::move(state)});
  }
}

const Printer* PrinterList::chosen() const { return index ? &all[*index].printer : nullptr; }

void PrinterList::choose(std::size_t place) { index = place; }

bool PrinterList::choose(const std::string& destination) {
  const auto found = std::ranges::find_if(all, [&](const Entry& entry) {
    return destination.empty() ? entry.printer.isDefault
                               : destinationName(entry.printer) == destination;
  });
  index.reset();
  if (found != all.end())
    index = static_cast<std::size_t>(found - all.begin());
  else if (destination.empty() && !all.empty())
    index = 0;
  return index.has_value();
}

void PrinterList::setState(const std::string& queue, const std::string& words) {
  for (Entry& entry : all)
    if (entry.printer.name == queue) entry.state = words;
}

}  // namespace tavrin
