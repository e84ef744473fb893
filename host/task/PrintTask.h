#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <QObject>

#include "host/prepare/Documents.h"
#include "host/task/JobDraft.h"
#include "host/task/JobFields.h"
#include "host/task/PrintRun.h"
#include "host/task/PrinterSearch.h"
#include "host/task/PrinterSettings.h"

namespace tavrin {

// Documents on their way to the paper, from the search for printers to what became of the jobs. It
// exists so that a dialog, a service and a command can each show the same thing: all state is here,
// none in a window. Nothing in it waits; whatever changes is told by a signal.
class PrintTask : public QObject {
  Q_OBJECT

 public:
  enum class Stage {
    idle,        // nothing was asked for yet
    looking,     // for printers
    noPrinters,  // none was found; looking again may help
    choosing,    // there are printers, but the one that was named is not among them
    reading,     // the chosen printer's settings
    ready,       // to print
    printing,    // the documents are prepared, and sent
    turning,     // the fronts are printed; the person turns the paper for the backs
    takingBack,  // cancelled, but may still arrive
    failed,      // the job did not arrive; everything is as it was, and can be tried again
    done,        // the job arrived
  };
  enum class Outcome {
    cancelled,  // nobody tried to print, or every try was taken back
    printed,
    failed,
  };
  // What the person can do about what a notice says.
  enum class WayOut {
    none,
    lookAgain,     // for printers: usePrintServer
    chooseFolder,  // for the jobs of a printer without a queue: setOutput
  };
  // What becomes of the documents.
  enum class Target {
    queue,   // jobs of a print queue
    folder,  // a folder for each job, for a printer that has no queue
    file,    // a PDF of the sheets; this one is always there
  };
  using Work = PrintRun::Work;
  // A sentence for the person; empty when there is nothing to say.
  struct Notice {
    std::string text;
    bool isWarning = false;
    WayOut wayOut = WayOut::none;
  };

  // The request holds the first choices of a person who can change them.
  explicit PrintTask(JobRequest request, QObject* parent = nullptr);
  ~PrintTask() override;

  // Looks for the print server's printers, and reads the settings of the one that was chosen last,
  // else of the one that the request names, else of the default one. Does nothing while a job is
  // sent.
  void usePrintServer();
  // Prints on this one printer, which has no queue: jobs become folders in the output folder.
  void usePrinterWithoutQueue(const SharedPPD& ppd, std::filesystem::path output);
  // Saves the sheets as a PDF instead of printing them: saveAs().
  void usePDF();
  // Back to the printer without a queue, where there is one.
  void useFolder();
  // Another output folder for the printer without a queue; print() tries it.
  void setOutput(const std::filesystem::path& folder);
  // More documents to print, with the same settings; a job each, or one for all where they are
  // pictures that go together. Does nothing while a job is sent and once it is done.
  void addDocuments(const std::vector<std::filesystem::path>& more);
  // Takes one out, by its place among documents(); but not the last that is left. Does nothing
  // while a job is sent and once it is done.
  void removeDocument(std::size_t place);
  // The person's choice, by its place in the list of printers. The settings of the printer that is
  // left are kept, and come back with it. Does nothing while a job is sent and once it is done.
  void choosePrinter(std::size_t place);

  // Prepares and sends the documents, as soon as they are known. Does nothing unless canPrint(),
  // and where the target is a file. If they cannot be sent with these settings, the notice says
  // why.
  void print();
  // The same, but saves the sheets as one PDF, whatever the target.
  void saveAs(const std::filesystem::path& file, SheetsSaver::Existing existing);
  // The paper has been turned: prints its backs. Where they cannot be sent, the paper is still
  // turned, and the notice says why.
  void printBacks(JobSequence::BackOrder order = JobSequence::BackOrder::same);
  // Takes back a job that is on its way; the stage is takingBack until that is done.
  void cancel();
  // The person leaves now: the report says why nothing was printed, where there is a reason.
  void leave();
  // A sentence of the program's for the person, which interrupts nothing: for information, or
  // because something went wrong.
  void say(const std::string& sentence) { tell({sentence}); }
  void warn(const std::string& sentence) { tell({sentence, true}); }

  Stage stage() const { return now; }
  bool canPrint() const { return now == Stage::ready || now == Stage::failed; }
  bool isSending() const {
    return now == Stage::printing || now == Stage::turning || now == Stage::takingBack;
  }
  const Notice& notice() const { return said; }
  // What is being done while the stage is printing.
  Work work() const { return run.work(); }

  const JobRequest& request() const { return asked; }
  // Whether documents can be added and removed now.
  bool canTakeDocuments() const { return !isSending() && now != Stage::done; }
  // What is known of the documents.
  Documents& documents() { return papers; }
  const Documents& documents() const { return papers; }
  const PrinterList& printers() const { return search.printers(); }
  // The chosen printer as a person knows it; empty while none is chosen.
  std::string printerName() const;
  Target target() const { return where; }
  // Whether a printer without a queue can be chosen; then no other one can.
  bool hasFolderPrinter() const { return static_cast<bool>(folderPPD); }
  std::string folderPrinterName() const;
  // Where the jobs of a printer without a queue are put; empty where there is none.
  const std::filesystem::path& outputFolder() const { return output; }
  JobFields& fields() { return jobFields; }
  const JobFields& fields() const { return jobFields; }
  // The chosen printer's settings; null while there are none.
  PrinterSession* session() const { return settings.session(); }
  // The options that the job would have now; of all pages where the page range is wrong.
  OptionList options() const { return draft.options(); }
  // All that decides how the sheets will look.
  Preparation preparation() const { return draft.preparation(where == Target::file); }

  Outcome outcome() const { return end; }
  // The job that arrived; null before it did.
  const JobReport* arrived() const { return arrivedJob ? &*arrivedJob : nullptr; }
  // What became of the job, in sentences: the job's name, or why there is none. Empty before, and
  // for a person who left of their own accord.
  const std::string& report() const { return reportText; }

 signals:
  void stageChanged();
  void noticeChanged();
  // There are other printers, another one is chosen, or one is doing something else.
  void printersChanged();
  // There are settings of another printer now.
  void sessionBegun();
  // The settings are about to go; whoever shows them lets go of them.
  void sessionEnding();
  // The same printer's settings were set anew.
  void sessionRestarted();
  // The job would have other options, or none, or it cannot be said what has changed.
  void optionsChanged();
  // There are other documents, or more is known of them.
  void documentsChanged();
  // How far the work has come, or that there is other work.
  void progressed(const tavrin::Progress& progress);

 private:
  QString stillOnItsWay() const;
  void connectSearch();
  void connectDocuments();
  void connectRun();
  void enter(Stage stage);
  void tell(Notice notice);

  void chooseFirstPrinter();
  void noPrinters(const QString& reason);
  void readChosenPrinter();
  void takePPD(const SharedPPD& ppd);
  void goWithoutPPD(const QString& reason);

  void leavePrinter();
  void beginSession(const SharedPPD& ppd);
  void restartSession();
  void endSession();
  OptionList startOptions() const;

  void takeDocuments();
  void followFirstDocument();
  void takePaper();
  bool begin();
  void refuse(const QString& reason);
  void finish(const JobReport& job);
  void giveBack(const QString& bareFronts, const QString& rest);
  void fail(const QString& reason, WayOut wayOut = WayOut::none);

  JobRequest asked;
  Target where = Target::queue;
  SharedPPD folderPPD;           // of the printer without a queue; null for none
  std::filesystem::path output;  // its folder
  Stage now = Stage::idle;
  Notice said;
  JobFields jobFields;
  PrinterSettings settings{asked, jobFields};
  std::string queueOfSession;
  std::string destination;  // the queue or instance whose settings are shown
  PrinterSearch search;
  Documents papers;
  JobDraft draft{asked, jobFields, settings, papers, search.printers()};
  PrintRun run{papers};
  bool isRefused = false;  // what the notice says is about the settings
  Outcome end = Outcome::cancelled;
  std::optional<JobReport> arrivedJob;
  std::string reportText;
};

}  // namespace tavrin
