#pragma once

#include <span>
#include <string>

#include <cups/cups.h>

namespace tavrin {

// Printers and their instances in the form in which libcups keeps them, sorted by name, each with
// what is known of it as options.
class DestinationArray {
 public:
  DestinationArray() = default;
  DestinationArray(const DestinationArray&) = delete;
  DestinationArray& operator=(const DestinationArray&) = delete;
  ~DestinationArray() { cupsFreeDests(count, first); }

  std::span<const cups_dest_t> all() const { return {first, static_cast<std::size_t>(count)}; }

  // What stands for a printer (with a null instance) or an instance of it; null when it is not
  // there.
  cups_dest_t* find(const char* name, const char* instance) const;
  // The same, made where it is not there. A new instance has its printer's options.
  cups_dest_t& add(const char* name, const char* instance);
  // Makes it the one default, if it is there.
  void setDefault(const char* name, const char* instance);

 private:
  cups_dest_t* first = nullptr;
  int count = 0;
};

}  // namespace tavrin
