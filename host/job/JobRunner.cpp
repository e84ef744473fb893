#include "host/job/JobRunner.h"

#include "host/job/TicketFolder.h"

namespace tavrin {

void JobRunner::submit(const JobRequest& request, const OptionList& options) {
  background.run([=, this](const CancelFlag& cancel, const Background::Send& send) {
    const auto tell = [&](const Progress& progress) {
      send([this, progress] { emit progressed(progress); });
    };
    send([this, result = submitJob(request, options, cancel, tell)] {
      if (!result)
        emit failed(QString::fromStdString(result.reason()));
      else if (result->cancelled)
        emit cancelled();
      else
        emit submitted(*result);
    });
  });
}

void JobRunner::writeFolder(const std::filesystem::path& output, const JobRequest& request,
                            const OptionList& options) {
  background.run([=, this](const CancelFlag& cancel, const Background::Send& send) {
    const auto tell = [&](const Progress& progress) {
      send([this, progress] { emit progressed(progress); });
    };
    send([this, folder = writeTicketFolder(output, request, options, cancel, tell)] {
      if (!folder)
        emit failed(QString::fromStdString(folder.reason()));
      else if (folder->empty())
        emit cancelled();
      else
        emit folderWritten(QString::fromStdString(folder->string()));
    });
  });
}

}  // namespace tavrin
