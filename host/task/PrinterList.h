#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/server/Destinations.h"

namespace tavrin {

// The printers that a person can choose from, with what each is doing, and which one is chosen.
class PrinterList {
 public:
  PrinterList() = default;
  // None is chosen at first.
  explicit PrinterList(std::vector<Printer> printers) : all(std::move(printers)) {}

  const std::vector<Printer>& entries() const { return all; }
  // Null while no printer is chosen.
  const Printer* chosen() const;
  // Absent while no printer is chosen.
  std::optional<std::size_t> chosenIndex() const { return index; }

  void chooseNone() { index.reset(); }
  // Chooses a printer by its place in the list, which must be there.
  void choose(std::size_t place);
  // Chooses the printer with that destination name ("queue/instance"); for an empty name the
  // default printer, or the first one where none is the default. False, and none is chosen, where
  // there is no such printer.
  bool choose(const std::string& destination);

  // What a queue is doing now, for it and all its instances.
  void setState(const std::string& queue, const PrinterState& state);

 private:
  std::vector<Printer> all;
  std::optional<std::size_t> index;
};

}  // namespace tavrin
