#include "host/support/OptionList.h"

#include <algorithm>

#include "host/support/CupsOptions.h"
#include "platform/text/IgnoringCase.h"

namespace tavrin {
namespace {

auto named(const std::string& name) {
  return [&name](const auto& option) { return equalIgnoringCase(option.first, name); };
}

}  // namespace

OptionList optionsFromArgument(const std::string& argument) {
  CupsOptions parsed;
  parsed.parse(argument);
  return parsed.list();
}

// Blanks separate options, and quotes hold them together.
std::string optionArgument(const std::string& name, const std::string& value) {
  std::string text = name + "=";
  for (const char c : value) {
    if (std::string_view(" \t\n\v\f\r\\'\"").find(c) != std::string_view::npos) text += '\\';
    text += c;
  }
  return text;
}

OptString optionValue(const OptionList& options, const std::string& name) {
  const auto place = std::ranges::find_if(options, named(name));
  return place != options.end() ? OptString(place->second) : std::nullopt;
}

void setOption(OptionList& options, const std::string& name, const std::string& value) {
  const auto place = std::ranges::find_if(options, named(name));
  if (place != options.end()) {
    *place = {name, value};
  } else {
    options.emplace_back(name, value);
  }
}

void removeOption(OptionList& options, const std::string& name) {
  std::erase_if(options, named(name));
}

}  // namespace tavrin
