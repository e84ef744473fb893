#pragma once

#include <utility>

#include "platform/contract/PrintJob.h"

namespace tavrin {

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
