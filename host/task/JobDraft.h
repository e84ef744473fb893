#pragma once

#include "host/prepare/Documents.h"
#include "host/task/JobFields.h"
#include "host/task/JobSequence.h"
#include "host/task/PrinterList.h"
#include "host/task/PrinterSettings.h"

namespace tavrin {

// The job as it would be printed now: what was asked for, what is set, for which printer and of
// which documents. It keeps nothing; what it is made of outlives it.
struct JobDraft {
  const JobRequest& asked;
  const JobFields& fields;
  const PrinterSettings& settings;
  const Documents& documents;
  const PrinterList& printers;

  // The options that the job would have; of all pages where the page range is wrong.
  OptionList options() const;
  // All that decides how the sheets will look, for a printer or for a file that somebody keeps,
  // where a page that is too large for the paper is made smaller unless another size is asked for.
  Preparation preparation(bool isForFile) const;
  // All that a sequence of jobs needs; without an output folder for a queue.
  JobSequence::Order order(const std::filesystem::path& output) const;

 private:
  JobRequest request() const;
};

}  // namespace tavrin
