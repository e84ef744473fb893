#include "host/dialog/GeneralArea.h"
#include "host/dialog/JobButtons.h"
#include "host/dialog/Note.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterPopUp.h"
#include "host/job/JobOptions.h"
#include "host/panes/LayoutPane.h"
#include "host/panes/Widgets.h"
#include "platform/qt/ShownText.h"

namespace tavrin {

void PrintDialog::connectRunner() {
  connect(&runner, &JobRunner::progressed, this, [this](const Progress& progress) {
    const double done = static_cast<double>(progress.done);
    buttons->showProgress(tr("Sending the document…"),
                          progress.total ? done / static_cast<double>(progress.total) : -1);
  });
  connect(&runner, &JobRunner::submitted, this, &PrintDialog::finishSubmission);
  connect(&runner, &JobRunner::folderWritten, this, [this](const QString& folder) {
    finish(tr("The job is in the folder %1.").arg(folder), false);
  });
  connect(&runner, &JobRunner::cancelled, this,
          [this] { giveBack(tr("Printing was cancelled. The settings are as they were.")); });
  connect(&runner, &JobRunner::failed, this, &PrintDialog::fail);
}

void PrintDialog::print() {
  const Result<std::string> ranges = general->pageRanges();
  if (!ranges) return general->focusPageRanges();
  if (const std::string problem = current ? current->takePanelChoices() : ""; !problem.empty())
    return note->say(shownLines(problem));
  note->clear();
  start(finishedRequest(*ranges));
}

JobRequest PrintDialog::finishedRequest(const std::string& ranges) const {
  JobRequest finished = request;
  const Printer& printer = *general->printers().selected();
  finished.printer = output.empty() ? printer.name : "";
  finished.instance = output.empty() ? printer.instance : "";
  finished.copies = general->copies();
  finished.pageRanges = ranges;
  finished.options = startOptions();
  // The dialog's own fields hold these.
  for (const char* name : {kCopiesOption, kPageRangesOption}) removeOption(finished.options, name);
  const int pages = layoutPane->pagesPerSheet();
  if (pages > 1 || optionValue(finished.options, kPagesPerSheetOption))
    setOption(finished.options, kPagesPerSheetOption, std::to_string(pages));
  return finished;
}

void PrintDialog::start(const JobRequest& finished) {
  const OptionList options = jobOptions(finished, current ? &current->ppd() : nullptr);
  content->setEnabled(false);
  buttons->setState(JobButtons::State::printing);
  buttons->showProgress(tr("Sending the document…"), -1);
  if (output.empty())
    runner.submit(finished, options);
  else
    runner.writeFolder(output, finished, options);
}

void PrintDialog::finishSubmission(const Submission& submission) {
  if (submission.cancelled)
    return giveBack(tr("Printing was cancelled. The settings are as they were."));
  const QString job =
      QString("%1-%2").arg(shownLine(general->printers().selected()->name)).arg(submission.jobId);
  QStringList report{tr("Job %1 was sent.").arg(job)};
  QStringList missing;
  for (const std::string& option : submission.missingOptions) missing << shownLine(option);
  if (!missing.isEmpty())
    report << tr("The printer did not get: %1. Look at the print before printing more.")
                  .arg(missing.join(", "));
  if (!submission.notReadBack.empty()) report << shownLines(submission.notReadBack);
  finish(report.join(' '), report.size() > 1);
}

void PrintDialog::finish(const QString& text, bool withWarning) {
  end = Outcome::printed;
  reportText = text;
  buttons->setState(JobButtons::State::done);
  note->say(text, withWarning ? Note::Kind::warning : Note::Kind::information);
}

void PrintDialog::giveBack(const QString& text) {
  content->setEnabled(true);
  buttons->setState(JobButtons::State::ready);
  note->say(text, Note::Kind::information);
}

void PrintDialog::fail(const QString& reason) {
  end = Outcome::failed;
  reportText = reason;
  content->setEnabled(true);
  buttons->setState(JobButtons::State::ready);
  note->say(reason);
}

}  // namespace tavrin
