#include "host/task/PrintTask.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QLocale>
#include <QTimer>

#include "host/prepare/Imposition.h"
#include "host/printer/JobSettings.h"
#include "host/printer/MarkedOptions.h"
#include "host/printer/PPDLoader.h"
#include "host/request/JobOptions.h"
#include "host/support/TextLists.h"
#include "platform/files/ProgramFolder.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

// So that a window comes up before its documents want the processor.
constexpr std::chrono::milliseconds kFirstRest(60);

QString shown(const std::string& text) { return QString::fromStdString(text); }

std::string leftAlone(const ppd_file_t& ppd) {
  const std::vector<std::string> keywords = optionsLeftAlone(ppd);
  if (keywords.empty()) return {};
  return "The printer's description has options named like settings of a job, which are left "
         "alone: " +
         joined(keywords) + ".";
}

// What the settings of that target are kept by; no queue has a name with a blank.
constexpr char kPDFDestination[] = "a file";

bool isLetterCountry() { return QLocale().measurementSystem() == QLocale::ImperialUSSystem; }

std::string nameOf(const ppd_file_t& ppd) {
  return ppd.nickname ? ppd.nickname : ppd.modelname ? ppd.modelname : "";
}

}  // namespace

PrintTask::PrintTask(JobRequest request, QObject* parent)
    : QObject(parent), asked(std::move(request)) {
  settings.choose("", startOptions());
  connectSearch();
  connectDocuments();
  connectRun();
  connect(&jobFields, &JobFields::changed, this, &PrintTask::optionsChanged);
  // What was wrong with the settings may be right with others.
  connect(this, &PrintTask::optionsChanged, this, [this] {
    if (std::exchange(isRefused, false) && canPrint()) tell({});
  });
  connect(&jobFields, &JobFields::pagesPerSheetChanged, this, [this](int pages) {
    if (session()) session()->setPagesPerSheet(pages);
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
  if (run.isSaving()) return tr("The PDF may have been saved all the same.");
  return where == Target::queue
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
  settings.keep();
  where = Target::queue;
  endSession();
  tell({});
  enter(Stage::looking);
  search.look();
}

void PrintTask::usePrinterWithoutQueue(const SharedPPD& ppd, std::filesystem::path folder) {
  output = std::move(folder);
  folderPPD = ppd;
  where = Target::folder;
  settings.choose("", startOptions());
  beginSession(ppd);
}

void PrintTask::useFolder() {
  if (isSending() || now == Stage::done || !folderPPD || where == Target::folder) return;
  leavePrinter();
  where = Target::folder;
  settings.choose("", startOptions());
  beginSession(folderPPD);
  emit printersChanged();
}

void PrintTask::usePDF() {
  if (isSending() || now == Stage::done || where == Target::file) return;
  Result<PPDPtr> ppd = loadPPD(programFolder().parent_path() / "share" / "tavrin" / "pdf.ppd");
  if (!ppd) return warn(ppd.reason());
  leavePrinter();
  where = Target::file;
  search.chooseNone();
  settings.choose(kPDFDestination, startOptions());
  beginSession(std::move(*ppd));
}

// Whatever is chosen next.
void PrintTask::leavePrinter() {
  settings.keep();
  endSession();
  queueOfSession.clear();
  destination.clear();
  tell({});
}

void PrintTask::setOutput(const std::filesystem::path& folder) {
  if (where != Target::folder || isSending()) return;
  output = folder;
  say(tr("The job will be put into the folder %1.").arg(shown(output.string())).toStdString());
}

void PrintTask::chooseFirstPrinter() {
  if (where == Target::file) return;
  if (printers().entries().empty())
    return noPrinters(tr("No printer is set up on this computer. Set one up, then look again."));
  const std::string named =
      destination.empty() ? destinationName(asked.printer, asked.instance) : destination;
  if (search.choose(named)) return readChosenPrinter();
  enter(Stage::choosing);
  warn(tr("There is no printer “%1”. Choose another one.").arg(shown(named)).toStdString());
}

void PrintTask::noPrinters(const QString& reason) {
  if (where == Target::file) return;
  enter(Stage::noPrinters);
  const QString sentence = tr("%1 Until then, “Save as PDF” is there all the same.").arg(reason);
  tell({sentence.toStdString(), true, WayOut::lookAgain});
}

void PrintTask::choosePrinter(std::size_t place) {
  if (isSending() || now == Stage::done || place >= printers().entries().size()) return;
  // Choosing the chosen printer changes nothing, except that settings that could not be read are
  // asked for again.
  if (printers().chosenIndex() == place && (session() || now == Stage::reading)) return;
  const std::string problem = settings.keep();
  where = Target::queue;
  search.choose(place);
  readChosenPrinter();
  if (!problem.empty()) warn(problem);
}

void PrintTask::readChosenPrinter() {
  tell({});
  destination = destinationName(*printers().chosen());
  const bool isSameQueue = session() && queueOfSession == printers().chosen()->name;
  if (!isSameQueue) endSession();
  settings.choose(destination, startOptions());
  if (isSameQueue) return restartSession();
  enter(Stage::reading);
  tell({tr("Reading the printer's settings…").toStdString()});
  queueOfSession = printers().chosen()->name;
  search.readChosen();
}

void PrintTask::takePPD(const SharedPPD& ppd) {
  if (now == Stage::reading || (canPrint() && !session())) beginSession(ppd);
}

// A printer without a PPD still prints; only its own settings cannot be shown.
void PrintTask::goWithoutPPD(const QString& reason) {
  if (now != Stage::reading) return;
  const QString sentence =
      tr("%1 The document can be printed all the same, with the printer's usual settings.")
          .arg(reason);
  warn(inOneText({sentence.toStdString(), settings.fieldProblem()}));
  enter(Stage::ready);
}

std::string PrintTask::printerName() const {
  if (where == Target::file) return tr("Save as PDF").toStdString();
  if (where == Target::folder) return folderPrinterName();
  return printers().chosen() ? titleOf(*printers().chosen()) : "";
}

std::string PrintTask::folderPrinterName() const { return folderPPD ? nameOf(*folderPPD) : ""; }

// --- The chosen printer's settings ---

void PrintTask::beginSession(const SharedPPD& ppd) {
  const std::string problems = settings.begin(ppd);  // the panels look at the marks as they come up
  std::vector<std::string> sentences{problems, leftAlone(*ppd), session()->loadPanels()};
  sentences.push_back(session()->takePanelChoices());
  tell({inOneText(sentences)});
  connect(&session()->marks(), &PPDMarks::refreshed, this, &PrintTask::optionsChanged);
  enter(Stage::ready);
  takePaper();
  emit sessionBegun();
}

// Another instance of the same printer.
void PrintTask::restartSession() {
  const std::string problems = settings.restart();
  warn(inOneText({problems, session()->takePanelChoices()}));
  enter(Stage::ready);
  takePaper();
  emit sessionRestarted();
}

void PrintTask::endSession() {
  if (!session()) return;
  emit sessionEnding();
  settings.end();
}

// What lp would send: the printer's saved options, the program's over them.
OptionList PrintTask::startOptions() const {
  OptionList options;
  if (const Printer* printer = printers().chosen()) options = printer->options;
  for (const auto& [name, value] : asked.options) setOption(options, name, value);
  if (where == Target::file && isLetterCountry() && !namesPaper(options))
    setOption(options, kPageSizeKey, "Letter");
  return options;
}

// --- The documents ---

void PrintTask::connectDocuments() {
  papers.add({asked.document});
  connect(&papers, &Documents::becameKnown, this, &PrintTask::takeDocuments);
  QTimer::singleShot(kFirstRest, &papers, &Documents::look);
}

void PrintTask::addDocuments(const std::vector<std::filesystem::path>& more) {
  if (!canTakeDocuments()) return;
  papers.add(more);
  emit documentsChanged();
}

void PrintTask::removeDocument(std::size_t place) {
  if (!canTakeDocuments() || papers.all().size() == 1) return;
  papers.remove(place);
  followFirstDocument();
  papers.areKnown() ? takeDocuments() : emit documentsChanged();
}

// The request is about a document that is still to be printed.
void PrintTask::followFirstDocument() { asked.document = papers.all().front().document; }

void PrintTask::takeDocuments() {
  const std::vector<DocumentFacts>& all = papers.all();
  jobFields.setDocumentPages(all.size() == 1 ? all.front().pages : 0);
  const auto isAPicture = [](const DocumentFacts& document) { return isPicture(document.format); };
  jobFields.setPictures(static_cast<int>(std::ranges::count_if(all, isAPicture)),
                        static_cast<int>(all.size()));
  takePaper();
  emit documentsChanged();
  run.documentsKnown();
}

void PrintTask::takePaper() {
  if (!papers.areKnown()) return;
  const OptString paper = settings.takePaper(papers.all().front());
  if (paper && said.text.empty() && !isSending())
    say(tr("The paper size is %1, as in the document.").arg(shown(*paper)).toStdString());
}

// --- The job ---

void PrintTask::connectRun() {
  connect(&run, &PrintRun::progressed, this, &PrintTask::progressed);
  connect(&run, &PrintRun::paperToBeTurned, this, [this] { enter(Stage::turning); });
  connect(&run, &PrintRun::finished, this, &PrintTask::finish);
  connect(&run, &PrintRun::cancelled, this, &PrintTask::giveBack);
  connect(&run, &PrintRun::nothingLeft, this, &PrintTask::refuse);
  connect(&run, &PrintRun::failed, this,
          [this](const QString& reason, const QString& rest) { fail(reason + rest); });
  connect(&run, &PrintRun::folderRefused, this, [this](const QString& reason, const QString& rest) {
    fail(reason + rest, WayOut::chooseFolder);
  });
  connect(&run, &PrintRun::documentsTaken, this, [this] {
    followFirstDocument();
    emit documentsChanged();
  });
}

void PrintTask::print() {
  if (where == Target::file || !begin()) return;
  run.send([this] { return draft.order(where == Target::folder ? output : ""); });
}

void PrintTask::saveAs(const std::filesystem::path& file, SheetsSaver::Existing existing) {
  if (begin()) run.save([this] { return preparation(); }, file, existing);
}

// Whether nothing is wrong with the settings.
bool PrintTask::begin() {
  if (!canPrint()) return false;
  const Result<std::string> ranges = jobFields.pageRanges();
  const std::string problem = !ranges     ? ranges.reason()
                              : session() ? session()->takePanelChoices()
                                          : "";
  if (!problem.empty()) {
    warn(problem);
    return false;
  }
  tell({});
  enter(Stage::printing);
  return true;
}

void PrintTask::printBacks(JobSequence::BackOrder order) {
  if (now != Stage::turning) return;
  tell({});
  enter(Stage::printing);
  run.printBacks(order);
}

void PrintTask::cancel() {
  if (now != Stage::printing && now != Stage::turning) return;
  enter(Stage::takingBack);
  run.cancel();
}

void PrintTask::finish(const JobReport& job) {
  end = Outcome::printed;
  reportText = job.text.toStdString();
  arrivedJob = job;
  enter(Stage::done);
}

void PrintTask::giveBack(const QString& bareFronts, const QString& rest) {
  enter(Stage::ready);
  reportText = bareFronts.toStdString();
  const QString sentence = bareFronts.isEmpty()
                               ? tr("Printing was cancelled. The settings are as they were.")
                               : tr("Printing was cancelled. %1").arg(bareFronts);
  say((sentence + rest).toStdString());
}

void PrintTask::refuse(const QString& reason) {
  enter(Stage::ready);
  warn(reason.toStdString());
  isRefused = true;
}

void PrintTask::fail(const QString& reason, WayOut wayOut) {
  if (run.isWaitingForPaper()) {
    enter(Stage::turning);
    return warn(reason.toStdString());
  }
  end = Outcome::failed;
  reportText = reason.toStdString();
  enter(Stage::failed);
  tell({reportText, true, wayOut});
}

}  // namespace tavrin
