#pragma once

#include <random>
#include <string>
#include <vector>

#include "platform/text/OptionalString.h"

namespace tavrin::walk {

using Dice = std::mt19937;

// A number from 0 to count - 1. Not std::uniform_int_distribution, whose numbers differ from one
// standard library to the next: a seed must mean the same walk everywhere.
inline int roll(Dice& dice, int count) {
  return static_cast<int>(dice() % static_cast<unsigned>(count));
}
inline bool chance(Dice& dice, int percent) { return roll(dice, 100) < percent; }

template <class T>
const T& oneOf(Dice& dice, const std::vector<T>& list) {
  return list[static_cast<std::size_t>(roll(dice, static_cast<int>(list.size())))];
}

// A printer of the family, as a walk may find it: any option may be missing, choices may be in
// another order or in another letter case, and the defaults may not be marked.
struct Printer {
  std::string ppd;  // the PPD's text
  bool markDefaults = true;
  std::string model;
  OptString year;  // the model year that the PPD leads to
};

Printer randomPrinter(Dice& dice);

// What the family's preferences file may say of the cartridges; no file if there is no first.
struct CartridgeSet {
  OptString first, second;
};
CartridgeSet randomCartridges(Dice& dice);

}  // namespace tavrin::walk
