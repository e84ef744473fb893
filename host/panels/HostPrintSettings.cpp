#include "host/panels/HostPrintSettings.h"

namespace tavrin {

int layoutColumns(int pagesPerSheet) {
  int columns = 1;
  while (columns * columns < pagesPerSheet) ++columns;
  return columns;
}

OptString HostPrintSettings::value(const std::string& key) const {
  const auto found = values.find(key);
  return found == values.end() ? std::nullopt : OptString(found->second);
}

void HostPrintSettings::setValue(const std::string& key, const OptString& text) {
  if (text)
    values[key] = *text;
  else
    values.erase(key);
}

}  // namespace tavrin
