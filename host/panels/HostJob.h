#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/contract/PrintJob.h"

// The job that a host prepares, as its panels see it.

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

// The page format of a job: without paper until one is set.
class HostPageFormat final : public PMPageFormat, private PMPaper {
 public:
  const PMPaper* paper() const override { return name ? this : nullptr; }

  // The paper's keyword in the PPD's "PageSize"; absent for a format without paper.
  void setPaper(OptString ppdName) { name = std::move(ppdName); }

 private:
  OptString ppdPaperName() const override { return name; }

  OptString name;
};

}  // namespace tavrin
