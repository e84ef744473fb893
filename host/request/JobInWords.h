#pragma once

#include <QString>

#include "host/support/OptionList.h"

namespace tavrin {

// What the documents of a job are.
enum class Contents { unknown, pages, pictures };

// What is known of a job beside its options.
struct JobScope {
  int documents = 1;
  Contents contents = Contents::unknown;
  int pages = 0;       // of all documents; 0 where nobody knows
  int sheets = 0;      // of paper for one copy; 0 where nobody knows
  QString paper = {};  // its name; empty where nobody knows
};

// A job in one line: "3 copies of pages 2 to 4, two on a sheet, mirrored, on 6 sheets of A4". What
// is usual goes without saying; there is always a word on the pages.
QString jobInWords(const OptionList& options, const JobScope& scope = {});

}  // namespace tavrin
