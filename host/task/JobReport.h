#pragma once

#include <QString>

#include "host/job/JobSubmitter.h"

namespace tavrin {

// What became of a job, for the person who printed it.
struct JobReport {
  QString text;    // sentences
  bool isWarning;  // not all is as it was wanted
};

// The report on a job that is in its queue.
JobReport reportOn(const std::string& queue, const Submission& submission);

}  // namespace tavrin
