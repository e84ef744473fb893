#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/text/OptionalString.h"

// Options of a job or a printer as the print system writes them. Letter case of their names does
// not count.

namespace tavrin {

// Options in the order in which they were given: name and value, as in lp's "-o NAME=VALUE".
using OptionList = std::vector<std::pair<std::string, std::string>>;

// The options in the argument of one "-o": several may be separated by blanks, values may be
// quoted, "name" and "noname" stand for true and false.
OptionList optionsFromArgument(const std::string& argument);
// One option as such an argument, which reads as this option again.
std::string optionArgument(const std::string& name, const std::string& value);

// The option's value; absent when it is not there.
OptString optionValue(const OptionList& options, const std::string& name);
// Replaces the option, with the letter case of the new name, or appends it.
void setOption(OptionList& options, const std::string& name, const std::string& value);
void removeOption(OptionList& options, const std::string& name);

}  // namespace tavrin
