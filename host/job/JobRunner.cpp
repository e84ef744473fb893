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
  run<std::filesystem::path>(
      [=](const CancelFlag& cancel, const ProgressCallback& progress) {
        return writeTicketFolder(output, request, options, cancel, progress);
      },
      [this](const std::filesystem::path& folder) { emit folderWritten(folder); });
}

}  // namespace tavrin
