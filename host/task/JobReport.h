#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <QString>

#include "host/job/JobSubmitter.h"

namespace tavrin {

// A job in a print queue.
struct QueuedJob {
  std::string queue;
  int id = 0;
};

// What became of a job that arrived, for the person who printed it.
struct JobReport {
  QString headline = {};              // where it is, in a few words
  QString text = {};                  // the same in sentences, and what else there is to say
  bool isWarning = false;             // not all is as it was wanted
  std::filesystem::path folder = {};  // that the job became; empty for a job in a queue
  QString remarks = {};               // what else there is to say, alone
  std::vector<QueuedJob> jobs = {};   // in queues, in the order in which they were sent
};

// The report on a job that is in its queue.
JobReport reportOn(const std::string& queue, const Submission& submission);

// The report on a job that became this folder.
JobReport reportOn(const std::filesystem::path& folder);

// The report on sheets that were saved as this file.
JobReport reportOnFile(const std::filesystem::path& file);

// The reports on several jobs, at least one, that were printed together.
JobReport inOne(const std::vector<JobReport>& reports);

}  // namespace tavrin
