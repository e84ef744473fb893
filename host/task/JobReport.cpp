#include "host/task/JobReport.h"

#include <QCoreApplication>
#include <QStringList>

#include "host/support/TextLists.h"

namespace tavrin {
namespace {

QString tr(const char* text) { return QCoreApplication::translate("JobReport", text); }

}  // namespace

JobReport reportOn(const std::string& queue, const Submission& submission) {
  QStringList sentences{
      tr("Job %1-%2 was sent.").arg(QString::fromStdString(queue)).arg(submission.jobId)};
  if (!submission.missingOptions.empty())
    sentences << tr("The printer did not get: %1. Look at the print before printing more.")
                     .arg(QString::fromStdString(joined(submission.missingOptions)));
  if (!submission.notReadBack.empty()) sentences << QString::fromStdString(submission.notReadBack);
  return {tr("The job was sent"), sentences.join(' '), sentences.size() > 1, {}};
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
  QStringList texts;
  JobReport all;
  for (const JobReport& report : reports) {
    texts << report.text;
    all.isWarning |= report.isWarning;
    all.folder = report.folder.parent_path();
  }
  all.headline = QCoreApplication::translate("JobReport", "%n jobs were sent", nullptr,
                                             static_cast<int>(reports.size()));
  all.text = texts.join(' ');
  return all;
}

}  // namespace tavrin
