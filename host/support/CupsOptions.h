#pragma once

#include <string>

#include <cups/cups.h>

#include "host/support/OptionList.h"

namespace tavrin {

// Owns an option array of libcups, for the calls that take one.
class CupsOptions {
 public:
  CupsOptions() = default;
  explicit CupsOptions(const OptionList& options) {
    for (const auto& [name, value] : options)
      size = cupsAddOption(name.c_str(), value.c_str(), size, &array);
  }
  CupsOptions(const CupsOptions&) = delete;
  CupsOptions& operator=(const CupsOptions&) = delete;
  ~CupsOptions() { cupsFreeOptions(size, array); }

  void parse(const std::string& argument) {
    size = cupsParseOptions(argument.c_str(), size, &array);
  }

  int count() const { return size; }
  cups_option_t* data() const { return array; }
  OptionList list() const {
    OptionList options;
    for (int i = 0; i < size; ++i) options.emplace_back(array[i].name, array[i].value);
    return options;
  }

 private:
  int size = 0;
  cups_option_t* array = nullptr;
};

}  // namespace tavrin
