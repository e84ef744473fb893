#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include <QDialog>

#include "host/job/JobRunner.h"
#include "host/panels/PrinterSession.h"
#include "host/server/PrinterBrowser.h"

class QTimer;

namespace tavrin {

class FeaturesPane;
class FittingScrollArea;
class GeneralArea;
class HelpWindow;
class JobButtons;
class LayoutPane;
class Note;
class Pane;
class PaneSwitcher;
class PanelPane;
class SummaryPane;

// The Print dialog: a program makes one for a document and shows it. It is the host of printers'
// panels, and prints by itself when the person says so.
class PrintDialog : public QDialog {
  Q_OBJECT

 public:
  enum class Outcome {
    cancelled,  // the person left without printing
    printed,
    failed,  // the person tried to print, and left after it had failed
  };

  // What the dialog begins with: the request's printer, copies and so on are the first choices of
  // a person who can change them.
  explicit PrintDialog(JobRequest request, QWidget* parent = nullptr);
  ~PrintDialog() override;

  // Looks for the print server's printers. The dialog can be shown at once.
  void usePrintServer();
  // Prints on this one printer, which has no queue: jobs become folders in the output folder.
  void usePrinterWithoutQueue(const SharedPPD& ppd, std::filesystem::path output);

  Outcome outcome() const { return end; }
  // What became of the job, in sentences: the job's name, or why there is none. Empty before, and
  // for a person who left of their own accord.
  const QString& report() const { return reportText; }

  // A sentence of the program's for the person; it interrupts nothing.
  void say(const std::string& sentence);

  // The printer that the dialog stands on; null while there is none that has settings.
  PrinterSession* session() const { return current.get(); }

  void reject() override;
  void setVisible(bool visible) override;

 signals:
  // The dialog has another printer's settings now.
  void sessionChanged();

 protected:
  bool event(QEvent* event) override;

 private:
  // The window.
  void build();
  void fillIn();
  void connectParts();
  void fit();
  void stayOnScreen();
  void showHelp();
  void leave(const QString& lastWords);
  void showConflicts();
  std::vector<std::pair<QString, std::vector<std::pair<QString, QString>>>> allLines() const;

  // Printers.
  void connectBrowser();
  void showPrinters(const std::vector<Printer>& printers);
  void noPrinters(const QString& reason);
  void choosePrinter();
  void takePPD(const SharedPPD& ppd);
  void goWithoutPPD(const QString& reason);
  void watchState();

  // The settings of the printer that was picked.
  void beginSession(const SharedPPD& ppd);
  void endSession();
  void makePanes();
  OptionList startOptions() const;
  QString markPrinter();

  // The job.
  void connectRunner();
  void print();
  JobRequest finishedRequest(const std::string& ranges) const;
  void start(const JobRequest& request);
  void finishSubmission(const Submission& submission);
  void finish(const QString& report, bool withWarning);
  void giveBack(const QString& note);
  void fail(const QString& reason);

  JobRequest request;
  std::filesystem::path output;  // empty while jobs go to queues
  std::string queueOfSession;
  std::string chosen;  // the queue or instance that the fields are filled in for
  std::unique_ptr<PrinterSession> current;

  FittingScrollArea* scroll;
  QWidget* content;
  GeneralArea* general;
  PaneSwitcher* switcher;
  Note* conflictNote;
  Note* note;
  JobButtons* buttons;
  LayoutPane* layoutPane;
  SummaryPane* summaryPane;
  FeaturesPane* featuresPane = nullptr;
  std::vector<PanelPane*> panelPanes;
  HelpWindow* help = nullptr;
  int wantedHeight = 0;  // what the contents asked for last

  PrinterBrowser browser;
  JobRunner runner;
  QTimer* stateTimer;
  Outcome end = Outcome::cancelled;
  QString reportText;
};

}  // namespace tavrin
