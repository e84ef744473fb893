#include "host/task/JobReport.h"

#include <QCoreApplication>
#include <QStringList>

#include "host/support/TextLists.h"

namespace tavrin {
namespace {

QString tr(const char* text, int count = -1) {
  return QCoreApplication::translate("JobReport", text, nullptr, count);
}

QString inSentences(const QString& first, const QStringList& others) {
  return (QStringList{first} + others).join(' ');
}

QString nameOf(const QueuedJob& job) {
  return QString("%1-%2").arg(QString::fromStdString(job.queue)).arg(job.id);
}

// Jobs that were sent one after the other mostly have numbers one after the other.
QString namesOf(const std::vector<QueuedJob>& jobs) {
  const int more = static_cast<int>(jobs.size()) - 1;
  if (more > 1 && jobs.back().id - jobs.front().id == more)
    return tr("%1 to %2").arg(nameOf(jobs.front()), nameOf(jobs.back()));
  QStringList names;
  for (const QueuedJob& job : jobs) names << nameOf(job);
  return names.join(tr(", "));
}

}  // namespace

JobReport reportOn(const std::string& queue, const Submission& submission) {
  QStringList remarks;
  if (!submission.missingOptions.empty())
    remarks << tr("The printer did not get: %1. Look at the print before printing more.")
                   .arg(QString::fromStdString(joined(submission.missingOptions)));
  if (!submission.notReadBack.empty()) remarks << QString::fromStdString(submission.notReadBack);
  const QueuedJob job{queue, submission.jobId};
  return {.headline = tr("The job was sent"),
          .text = inSentences(tr("Job %1 was sent.").arg(nameOf(job)), remarks),
          .isWarning = !remarks.isEmpty(),
          .remarks = remarks.join(' '),
          .jobs = {job}};
}

JobReport reportOn(const std::filesystem::path& folder) {
  return {tr("The job is in the folder"),
          tr("The job is in the folder %1.").arg(QString::fromStdString(folder.string())), false,
          folder};
}

JobReport reportOnFile(const std::filesystem::path& file) {
  std::error_code none;
  return {tr("The PDF was saved"),
          tr("The sheets were saved as %1.").arg(QString::fromStdString(file.string())), false,
          std::filesystem::absolute(file, none).parent_path()};
}

JobReport inOne(const std::vector<JobReport>& reports) {
  if (reports.size() == 1) return reports.front();
  QStringList remarks;
  JobReport all;
  for (const JobReport& report : reports) {
    if (!report.remarks.isEmpty() && !remarks.contains(report.remarks)) remarks << report.remarks;
    all.isWarning |= report.isWarning;
    all.folder = report.folder.parent_path();
    all.jobs.insert(all.jobs.end(), report.jobs.begin(), report.jobs.end());
  }
  const int count = static_cast<int>(reports.size());
  all.headline =
      all.jobs.empty() ? tr("%n jobs are in the folder", count) : tr("%n jobs were sent", count);
  all.text = inSentences(all.jobs.empty() ? tr("%n jobs are in the folder %1.", count)
                                                .arg(QString::fromStdString(all.folder.string()))
                                          : tr("Jobs %1 were sent.").arg(namesOf(all.jobs)),
                         remarks);
  all.remarks = remarks.join(' ');
  return all;
}

}  // namespace tavrin
