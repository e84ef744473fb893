#pragma once

#include <filesystem>

#include <QObject>
#include <QString>

#include "host/job/JobSubmitter.h"
#include "host/support/Background.h"

namespace tavrin {

// Prints without holding up the window: one job, answered by exactly one of the last five signals,
// unless the runner is gone by then. A runner that goes away cancels its job.
class JobRunner : public QObject {
  Q_OBJECT

 public:
  explicit JobRunner(QObject* parent = nullptr) : QObject(parent) {}

  // Sends the job to its queue (submitJob).
  void submit(const JobRequest& request, const OptionList& options);
  // Writes the job to a folder (writeTicketFolder).
  void writeFolder(const std::filesystem::path& output, const JobRequest& request,
                   const OptionList& options);
  // Gives up; `cancelled` comes when that is done.
  void cancel() { background.cancel(); }

 signals:
  void progressed(const tavrin::Progress& progress);
  void submitted(const tavrin::Submission& submission);
  void folderWritten(const std::filesystem::path& folder);
  // The output folder cannot take the job; another one may.
  void folderRefused(const QString& reason);
  void cancelled();
  void failed(const QString& reason);

 private:
  // Makes a call in the background, then tells its value or, where there is none, emits `failed` or
  // `cancelled`.
  template <class Value, class Call, class Tell>
  void run(Call call, Tell tellValue);

  Background background;
};

}  // namespace tavrin
