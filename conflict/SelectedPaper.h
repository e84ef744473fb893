#pragma once

#include <string>

#include <cups/ppd.h>

#include "platform/contract/PrintJob.h"

namespace tavrin {

// The paper that a job is laid out for. A page format or a PPD may name papers as older systems
// did; the panel goes by today's names.
class SelectedPaper {
 public:
  // The format is read once; it may be null or without a paper.
  explicit SelectedPaper(const PMPageFormat* format);

  // Its name in "PageSize", an old name brought to today's; absent without a paper.
  OptString todaysName() const;

  // What people call it: the PPD's text of today's name, else of the name that the format gives,
  // else today's name itself; empty without a paper. The PPD may be null.
  std::string text(ppd_file_t* ppd) const;

 private:
  OptString ownName;
};

// By a paper's name; an absent one is neither. Two letters, "BA", make a banner.
bool isEnvelope(const OptString& paperName);
bool isBanner(const OptString& paperName);

}  // namespace tavrin
