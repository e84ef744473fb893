#include "host/job/JobRunner.h"

#include "host/ticket/TicketFolder.h"

namespace tavrin {

template <class Value, class Call, class Tell>
void JobRunner::run(Call call, Tell tellValue) {
  background.run([=, this](const CancelFlag& cancel, const Background::Send& send) {
    const ProgressCallback tell = [&](const Progress& progress) {
      send([this, progress] { emit progressed(progress); });
    };
    const Cancellable<Value> end = call(cancel, tell);
    send([=, this] {
      if (end)
        tellValue(*end);
      else if (end.cancelled())
        emit cancelled();
      else
        emit failed(QString::fromStdString(end.reason()));
    });
  });
}

void JobRunner::submit(const JobRequest& request, const OptionList& options) {
  run<Submission>(
      [=](const CancelFlag& cancel, const ProgressCallback& progress) {
        return submitJob(request, options, cancel, progress);
      },
      [this](const Submission& submission) { emit submitted(submission); });
}

void JobRunner::writeFolder(const std::filesystem::path& output, const JobRequest& request,
                            const OptionList& options) {
  using Answer = Result<std::filesystem::path>;
  run<Answer>(
      [=](const CancelFlag& cancel, const ProgressCallback& progress) {
        return writeTicketFolder(output, request, options, cancel, progress);
      },
      [this](const Answer& folder) {
        if (folder) return emit folderWritten(*folder);
        emit folderRefused(QString::fromStdString(folder.reason()));
      });
}

}  // namespace tavrin
