#pragma once

#include <map>
#include <string>

#include "platform/contract/PrintJob.h"

namespace tavrin {

// How many columns a sheet with that many pages has, at its widest: what a host sets for
// kPMLayoutColumns.
int layoutColumns(int pagesPerSheet);

// The print settings of a job: texts by key, none set at first.
class HostPrintSettings final : public PMPrintSettings {
 public:
  OptString value(const std::string& key) const override;

  // Sets a key, or takes the setting away when the text is absent.
  void setValue(const std::string& key, const OptString& text);

 private:
  std::map<std::string, std::string> values;
};

}  // namespace tavrin
