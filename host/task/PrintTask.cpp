#include "host/task/PrintTask.h"

#include <utility>

#include "host/printer/JobSettings.h"
#include "host/printer/MarkedOptions.h"
#include "host/request/JobOptions.h"
#include "host/support/TextLists.h"

namespace tavrin {
namespace {

QString shown(const std::string& text) { return QString::fromStdString(text); }

std::string inOneText(std::vector<std::string> sentences) {
  std::erase(sentences, "");
  return joined(sentences, " ");
}

std::string leftAlone(const ppd_file_t& ppd) {
  const std::vector<std::string> keywords = optionsLeftAlone(ppd);
  if (keywords.empty()) return {};
  return "The printer's description has options named like settings of a job, which are left "
         "alone: " +
         joined(keywords) + ".";
}

std::string nameOf(const ppd_file_t& ppd) {
  return ppd.nickname ? ppd.nickname : ppd.modelname ? ppd.modelname : "";
}

}  // namespace

PrintTask::PrintTask(JobRequest request, QObject* parent)
    : QObject(parent), asked(std::move(request)) {
  suggestFields();
  connectSearch();
  connectRunner();
  connect(&jobFields, &JobFields::changed, this, &PrintTask::optionsChanged);
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
    reportText = stillOnItsWay().toStdString();
  else if (said.isWarning)
    reportText = said.text;
}

QString PrintTask::stillOnItsWay() const {
  return hasQueue()
             ? tr("The job may still be on its way. See whether it is in the queue: lpstat -o")
             : tr("The job may have been written all the same. See whether it is in the "
                  "folder %1.")
                   .arg(shown(output.string()));
}

// --- Printers ---

void PrintTask::connectSearch() {
  connect(&search, &PrinterSearch::printersChanged, this, &PrintTask::printersChanged);
  connect(&search, &PrinterSearch::found, this, &PrintTask::chooseFirstPrinter);
  connect(&search, &PrinterSearch::failed, this, &PrintTask::noPrinters);
  connect(&search, &PrinterSearch::settingsRead, this, &PrintTask::takePPD);
  connect(&search, &PrinterSearch::settingsFailed, this, &PrintTask::goWithoutPPD);
}

void PrintTask::usePrintServer() {
  if (isSending()) return;
  keepSettings();
  endSession();
  tell({});
  enter(Stage::looking);
  search.look();
}

void PrintTask::usePrinterWithoutQueue(const SharedPPD& ppd, std::filesystem::path folder) {
  output = std::move(folder);
  beginSession(ppd);
}

void PrintTask::setOutput(const std::filesystem::path& folder) {
  if (hasQueue() || isSending()) return;
  output = folder;
  say(tr("The job will be put into the folder %1.").arg(shown(output.string())).toStdString());
}

void PrintTask::chooseFirstPrinter() {
  if (printers().entries().empty())
    return noPrinters(tr("No printer is set up on this computer. Set one up, then look again."));
  const std::string named =
      destination.empty() ? destinationName(asked.printer, asked.instance) : destination;
  if (search.choose(named)) return readChosenPrinter();
  enter(Stage::choosing);
  warn(tr("There is no printer “%1”. Choose another one.").arg(shown(named)).toStdString());
}

void PrintTask::noPrinters(const QString& reason) {
  enter(Stage::noPrinters);
  tell({reason.toStdString(), true, WayOut::lookAgain});
}

void PrintTask::choosePrinter(std::size_t place) {
  if (isSending() || now == Stage::done || place >= printers().entries().size()) return;
  // Choosing the chosen printer changes nothing, except that settings that could not be read are
  // asked for again.
  if (printers().chosenIndex() == place && (current || now == Stage::reading)) return;
  const std::string problem = keepSettings();
  search.choose(place);
  readChosenPrinter();
  if (!problem.empty()) warn(problem);
}

void PrintTask::readChosenPrinter() {
  tell({});
  destination = destinationName(*printers().chosen());
  if (current && queueOfSession == printers().chosen()->name) return restartSession();
  endSession();
  suggestFields();
  enter(Stage::reading);
  tell({tr("Reading the printer's settings…").toStdString()});
  queueOfSession = printers().chosen()->name;
  search.readChosen();
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
  return printers().chosen() ? titleOf(*printers().chosen()) : "";
}

// --- The chosen printer's settings ---

void PrintTask::beginSession(const SharedPPD& ppd) {
  current = std::make_unique<PrinterSession>(ppd);
  const std::string problems = markPrinter();  // the panels look at the marks as they come up
  tell({inOneText({problems, leftAlone(*ppd), current->loadPanels()})});
  connect(&current->marks(), &PPDMarks::refreshed, this, &PrintTask::optionsChanged);
  enter(Stage::ready);
  emit sessionBegun();
}

// Another instance of the same printer.
void PrintTask::restartSession() {
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
  if (const Printer* printer = printers().chosen()) options = printer->options;
  for (const auto& [name, value] : asked.options) setOption(options, name, value);
  return options;
}

// What the printer has itself by the name of a field is a choice of its PPD.
void PrintTask::suggestFields() {
  OptionList options = startOptions();
  if (current)
    std::erase_if(options, [this](const auto& option) {
      return isPrintersOwn(current->ppd(), option.first);
    });
  layoutProblem = jobFields.suggest(asked, options).toStdString();
}

std::string PrintTask::markPrinter() {
  suggestFields();
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
  connect(&runner, &JobRunner::submitted, this,
          [this](const Submission& submission) { finish(reportOn(queueOfSession, submission)); });
  connect(&runner, &JobRunner::folderWritten, this,
          [this](const std::filesystem::path& folder) { finish(reportOn(folder)); });
  connect(&runner, &JobRunner::cancelled, this, &PrintTask::giveBack);
  connect(&runner, &JobRunner::folderRefused, this,
          [this](const QString& reason) { fail(reason, WayOut::chooseFolder); });
  connect(&runner, &JobRunner::failed, this, [this](const QString& reason) { fail(reason); });
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

OptionList PrintTask::options() const {
  const Result<std::string> ranges = jobFields.pageRanges();
  return jobOptions(finishedRequest(ranges ? *ranges : ""), current ? &current->ppd() : nullptr);
}

JobRequest PrintTask::finishedRequest(const std::string& ranges) const {
  JobRequest finished = asked;
  finished.printer = hasQueue() ? printers().chosen()->name : "";
  finished.instance = hasQueue() ? printers().chosen()->instance : "";
  finished.copies = jobFields.copies();
  finished.pageRanges = ranges;
  finished.options = startOptions();
  // The fields have taken these.
  for (const std::string& name : JobFields::optionNames()) removeOption(finished.options, name);
  for (const auto& [name, value] : jobFields.options()) setOption(finished.options, name, value);
  return finished;
}

void PrintTask::cancel() {
  if (now != Stage::printing) return;
  enter(Stage::takingBack);
  runner.cancel();
}

void PrintTask::finish(const JobReport& job) {
  end = Outcome::printed;
  reportText = job.text.toStdString();
  arrivedJob = job;
  enter(Stage::done);
}

void PrintTask::giveBack() {
  enter(Stage::ready);
  tell({tr("Printing was cancelled. The settings are as they were.").toStdString()});
}

void PrintTask::fail(const QString& reason, WayOut wayOut) {
  end = Outcome::failed;
  reportText = reason.toStdString();
  enter(Stage::failed);
  tell({reportText, true, wayOut});
}

}  // namespace tavrin
