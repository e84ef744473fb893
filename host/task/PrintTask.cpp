#include "host/task/PrintTask.h"

#include <utility>

#include <QStringList>

#include "host/job/JobOptions.h"
#include "host/printer/MarkedOptions.h"
#include "host/support/Joined.h"

namespace tavrin {
namespace {

constexpr int kStateInterval = 10'000;  // milliseconds

QString shown(const std::string& text) { return QString::fromStdString(text); }

std::string inOneText(std::vector<std::string> sentences) {
  std::erase(sentences, "");
  return joined(sentences, " ");
}

std::string nameOf(const ppd_file_t& ppd) {
  return ppd.nickname ? ppd.nickname : ppd.modelname ? ppd.modelname : "";
}

}  // namespace

PrintTask::PrintTask(JobRequest request, QObject* parent)
    : QObject(parent), asked(std::move(request)) {
  suggestFields();
  connectBrowser();
  connectRunner();
  connect(&jobFields, &JobFields::pagesPerSheetChanged, this, [this](int pages) {
    if (current) current->setPagesPerSheet(pages);
  });
}

PrintTask::~PrintTask() = default;

void PrintTask::enter(Stage stage) {
  if (std::exchange(now, stage) != stage) emit stageChanged();
}

void PrintTask::tell(Notice notice) {
  said = std::move(notice);
  emit noticeChanged();
}

void PrintTask::leave() {
  if (end != Outcome::cancelled) return;
  if (isSending())
    reportText = tr("The job may still be on its way. See whether it is in the queue: lpstat -o")
                     .toStdString();
  else if (said.isWarning)
    reportText = said.text;
}

// --- Printers ---

void PrintTask::connectBrowser() {
  const auto isChosen = [this](const std::string& queue) {
    return list.chosen() && list.chosen()->name == queue;
  };
  connect(&browser, &PrinterBrowser::printersFound, this, &PrintTask::showPrinters);
  connect(&browser, &PrinterBrowser::printersFailed, this, &PrintTask::noPrinters);
  connect(&browser, &PrinterBrowser::ppdReady, this,
          [=, this](const std::string& queue, const SharedPPD& ppd) {
            if (isChosen(queue)) takePPD(ppd);
          });
  connect(&browser, &PrinterBrowser::ppdFailed, this,
          [=, this](const std::string& queue, const QString& reason) {
            if (isChosen(queue)) goWithoutPPD(reason);
          });
  connect(&browser, &PrinterBrowser::stateChanged, this,
          [this](const std::string& queue, const PrinterState& state) {
            setState(queue, stateText(state));
          });
  connect(&browser, &PrinterBrowser::stateFailed, this, [this](const std::string& queue) {
    setState(queue, tr("does not answer").toStdString());
  });
  connect(&stateTimer, &QTimer::timeout, this, [this] {
    if (const Printer* printer = list.chosen()) browser.readState(printer->name);
  });
}

void PrintTask::usePrintServer() {
  if (isSending()) return;
  keepSettings();
  endSession();
  tell({});
  list = {};
  emit printersChanged();
  enter(Stage::looking);
  browser.findPrinters();
}

void PrintTask::usePrinterWithoutQueue(const SharedPPD& ppd, std::filesystem::path folder) {
  output = std::move(folder);
  beginSession(ppd);
}

void PrintTask::showPrinters(const std::vector<Printer>& found) {
  if (found.empty())
    return noPrinters(tr("No printer is set up on this computer. Set one up, then look again."));
  const std::string named = destinationName(asked.printer, asked.instance);
  list = PrinterList(found);
  const bool isThere = list.choose(named);
  emit printersChanged();
  if (isThere) return readChosenPrinter();
  enter(Stage::choosing);
  warn(tr("There is no printer “%1”. Choose another one.").arg(shown(named)).toStdString());
}

void PrintTask::noPrinters(const QString& reason) {
  enter(Stage::noPrinters);
  tell({reason.toStdString(), true, true});
}

void PrintTask::choosePrinter(std::size_t place) {
  if (isSending() || now == Stage::done || place >= list.entries().size()) return;
  // Choosing the chosen printer changes nothing, except that settings that could not be read are
  // asked for again.
  if (list.chosenIndex() == place && (current || now == Stage::reading)) return;
  const std::string problem = keepSettings();
  list.choose(place);
  emit printersChanged();
  readChosenPrinter();
  if (!problem.empty()) warn(problem);
}

void PrintTask::readChosenPrinter() {
  tell({});
  destination = destinationName(*list.chosen());
  if (current && queueOfSession == list.chosen()->name) return restartSession();
  endSession();
  suggestFields();
  enter(Stage::reading);
  tell({tr("Reading the printer's settings…").toStdString()});
  queueOfSession = list.chosen()->name;
  browser.fetchPPD(queueOfSession);
  browser.readState(queueOfSession);
  stateTimer.start(kStateInterval);
}

void PrintTask::setState(const std::string& queue, const std::string& words) {
  list.setState(queue, words);
  emit printersChanged();
}

void PrintTask::takePPD(const SharedPPD& ppd) {
  if (now == Stage::reading || (canPrint() && !current)) beginSession(ppd);
}

// A printer without a PPD still prints; only its own settings cannot be shown.
void PrintTask::goWithoutPPD(const QString& reason) {
  if (now != Stage::reading) return;
  const QString sentence =
      tr("%1 The document can be printed all the same, with the printer's usual settings.")
          .arg(reason);
  warn(inOneText({sentence.toStdString(), layoutProblem}));
  enter(Stage::ready);
}

std::string PrintTask::printerName() const {
  if (!hasQueue()) return current ? nameOf(current->ppd()) : "";
  return list.chosen() ? destinationName(*list.chosen()) : "";
}

// --- The chosen printer's settings ---

void PrintTask::beginSession(const SharedPPD& ppd) {
  current = std::make_unique<PrinterSession>(ppd);
  const std::string problems = markPrinter();  // the panels look at the marks as they come up
  tell({inOneText({problems, current->loadPanels()})});
  enter(Stage::ready);
  emit sessionBegun();
}

// Another instance of the same printer.
void PrintTask::restartSession() {
  suggestFields();
  warn(markPrinter());
  enter(Stage::ready);
  emit sessionRestarted();
}

void PrintTask::endSession() {
  if (!current) return;
  emit sessionEnding();
  current.reset();
}

std::string PrintTask::keepSettings() {
  if (!current) return {};
  std::string problem = current->takePanelChoices();
  kept[destination] = {withMarks(startOptions(), current->ppd()),
                       optionsWithoutMark(current->ppd())};
  return problem;
}

// What lp would send: the printer's saved options, the program's over them.
OptionList PrintTask::startOptions() const {
  OptionList options;
  if (const Printer* printer = list.chosen()) options = printer->options;
  for (const auto& [name, value] : asked.options) setOption(options, name, value);
  return options;
}

void PrintTask::suggestFields() {
  layoutProblem = jobFields.suggest(asked, startOptions()).toStdString();
}

std::string PrintTask::markPrinter() {
  current->setPagesPerSheet(jobFields.pagesPerSheet());
  const auto before = kept.find(destination);
  std::vector<std::string> problems =
      before == kept.end() ? current->markAnew(startOptions())
                           : current->markAnew(before->second.options, before->second.unmarked);
  problems.push_back(layoutProblem);
  return inOneText(problems);
}

// --- The job ---

void PrintTask::connectRunner() {
  connect(&runner, &JobRunner::progressed, this, &PrintTask::progressed);
  connect(&runner, &JobRunner::submitted, this, &PrintTask::finishSubmission);
  connect(&runner, &JobRunner::folderWritten, this, [this](const QString& folder) {
    finish(tr("The job is in the folder %1.").arg(folder), false);
  });
  connect(&runner, &JobRunner::cancelled, this, &PrintTask::giveBack);
  connect(&runner, &JobRunner::failed, this, &PrintTask::fail);
}

void PrintTask::print() {
  if (!canPrint()) return;
  const Result<std::string> ranges = jobFields.pageRanges();
  if (!ranges) return warn(ranges.reason());
  if (const std::string problem = current ? current->takePanelChoices() : ""; !problem.empty())
    return warn(problem);
  tell({});
  const JobRequest finished = finishedRequest(*ranges);
  const OptionList options = jobOptions(finished, current ? &current->ppd() : nullptr);
  enter(Stage::printing);
  if (hasQueue())
    runner.submit(finished, options);
  else
    runner.writeFolder(output, finished, options);
}

JobRequest PrintTask::finishedRequest(const std::string& ranges) const {
  JobRequest finished = asked;
  finished.printer = hasQueue() ? list.chosen()->name : "";
  finished.instance = hasQueue() ? list.chosen()->instance : "";
  finished.copies = jobFields.copies();
  finished.pageRanges = ranges;
  finished.options = startOptions();
  // The fields have taken these.
  for (const char* name : {kCopiesOption, kPageRangesOption}) removeOption(finished.options, name);
  const int pages = jobFields.pagesPerSheet();
  if (pages > 1 || optionValue(finished.options, kPagesPerSheetOption))
    setOption(finished.options, kPagesPerSheetOption, std::to_string(pages));
  return finished;
}

void PrintTask::cancel() {
  if (now != Stage::printing) return;
  enter(Stage::takingBack);
  runner.cancel();
}

void PrintTask::finishSubmission(const Submission& submission) {
  QStringList report{tr("Job %1-%2 was sent.").arg(shown(queueOfSession)).arg(submission.jobId)};
  QStringList missing;
  for (const std::string& option : submission.missingOptions) missing << shown(option);
  if (!missing.isEmpty())
    report << tr("The printer did not get: %1. Look at the print before printing more.")
                  .arg(missing.join(", "));
  if (!submission.notReadBack.empty()) report << shown(submission.notReadBack);
  finish(report.join(' '), report.size() > 1);
}

void PrintTask::finish(const QString& text, bool isWarning) {
  end = Outcome::printed;
  reportText = text.toStdString();
  enter(Stage::done);
  tell({reportText, isWarning});
}

void PrintTask::giveBack() {
  enter(Stage::ready);
  tell({tr("Printing was cancelled. The settings are as they were.").toStdString()});
}

void PrintTask::fail(const QString& reason) {
  end = Outcome::failed;
  reportText = reason.toStdString();
  enter(Stage::failed);
  warn(reportText);
}

}  // namespace tavrin
