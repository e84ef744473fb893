// tavrin-print: the Print dialog as a command.

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <memory>

#include <QApplication>
#include <QSettings>

#include "host/dialog/DesktopHelpViewer.h"
#include "host/dialog/PrintDialog.h"
#include "host/printer/PPDLoader.h"
#include "host/program/CommandLine.h"
#include "host/program/EndSignals.h"
#include "host/program/GivenDocuments.h"
#include "host/program/Identity.h"
#include "host/program/Launcher.h"
#include "host/program/Samples.h"
#include "host/program/SaveRun.h"
#include "host/support/Background.h"
#include "host/task/PrintTask.h"
#include "platform/files/RootFolder.h"
#include "platform/files/StandardStreams.h"
#include "platform/qt/base/OutlinedStyle.h"
#include "platform/qt/base/ShownText.h"
#include "platform/qt/toolkit/QtToolkit.h"
#include "platform/text/Visible.h"

namespace {

using namespace tavrin;

constexpr char kNoDisplay[] =
    "There is no display to show the dialog on. Set DISPLAY, or print with lp.";

// What the person prefers, kept from one start to the next.
constexpr char kPreviewSetting[] = "preview/shown";

enum ExitStatus { kPrinted = 0, kCancelled = 1, kUsage = 2, kNotPrinted = 3 };

int complain(ExitStatus status, const std::string& sentence) {
  writeError("tavrin-print", sentence);
  return status;
}

// The same before anything is on the screen.
int refuse(ExitStatus status, const std::string& sentence) {
  if (isStartedFromLauncher()) showInOwnProcess(sentence);
  return complain(status, sentence);
}

// Writes on standard output. What was to be said there is lost when that fails, so that is a
// failure even of a program that has printed; the sentence says so first.
int tell(const std::string& text, const std::string& whatIsDone = "") {
  const std::string problem = writeOutput(text);
  if (problem.empty()) return kPrinted;
  return complain(kNotPrinted, whatIsDone + "Standard output cannot be written: " + problem + ".");
}

bool hasDisplay() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    if (const char* value = std::getenv(name); value && *value) return true;
  return false;
}

void showMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
  std::cerr << visibleLines(text.toStdString()) << "\n";
}

// Qt ends the program when the display cannot be reached; the person should learn why.
void complainAndLeave(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  showMessage(type, context, text);
  if (type == QtFatalMsg) std::_Exit(complain(kNotPrinted, kNoDisplay));
}

int report(const PrintTask& task) {
  const std::string text = shownLines(task.report()).toStdString();
  switch (task.outcome()) {
    case PrintTask::Outcome::failed:
      return complain(kNotPrinted, text);
    case PrintTask::Outcome::cancelled:
      return text.empty() ? kCancelled : complain(kCancelled, text);
    case PrintTask::Outcome::printed:
      break;
  }
  return tell(text + "\n", text + " ");
}

// The preview as the person left it last.
void rememberPreview(PrintDialog& dialog, const CommandLine& line) {
  const auto remembered = std::make_shared<QSettings>("tavrin", "tavrin-print");
  dialog.setPreviewWanted(!line.noPreview && remembered->value(kPreviewSetting, true).toBool());
  QObject::connect(&dialog, &PrintDialog::previewWantedChanged,
                   [remembered](bool wanted) { remembered->setValue(kPreviewSetting, wanted); });
}

void begin(PrintTask& task, const CommandLine& line, const SharedPPD& ppd) {
  if (ppd)
    task.usePrinterWithoutQueue(ppd, line.output);
  else if (line.withoutDialog && line.job.printer.empty())
    task.usePDF();
  else
    task.usePrintServer();
}

// The panels go before the toolkit and the help viewer that they use.
int runDialog(const CommandLine& line, const SharedPPD& ppd, DesktopHelpViewer& helpViewer) {
  PrintTask task(line.job);
  task.addDocuments(line.furtherDocuments);
  PrintDialog dialog(task);
  rememberPreview(dialog, line);
  const EndSignals endSignals([&dialog] { dialog.end(); });
  helpViewer.setComplaint([&](const std::string& sentence) { task.say(sentence); });
  begin(task, line, ppd);
  dialog.exec();
  return report(task);
}

// Without anybody to ask. What a person would be told in a dialog is said on standard error.
int runWithoutDialog(const CommandLine& line, const SharedPPD& ppd) {
  PrintTask task(line.job);
  task.addDocuments(line.furtherDocuments);
  begin(task, line, ppd);
  const EndSignals endSignals([] { QCoreApplication::quit(); });
  SaveRun run(task, line.save);
  QObject::connect(&run, &SaveRun::ended, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
  QCoreApplication::exec();
  if (task.outcome() != PrintTask::Outcome::cancelled) return report(task);
  const std::string why = task.notice().text;
  return complain(kNotPrinted, why.empty() ? "Nothing was saved." : shownLines(why).toStdString());
}

// Qt's remarks about a screen that is none are of no use to anybody.
void showTrouble(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type == QtCriticalMsg || type == QtFatalMsg) showMessage(type, context, text);
}

int show(const CommandLine& line, const SharedPPD& ppd, int& argc, char** argv) {
  qInstallMessageHandler(line.withoutDialog ? showTrouble : complainAndLeave);
  QApplication application(argc, argv);
  if (!line.withoutDialog) qInstallMessageHandler(showMessage);
  identifyProgram();
  OutlinedStyle::install();
  QtToolkit toolkit;
  Toolkit::install(&toolkit);
  DesktopHelpViewer helpViewer;
  HelpViewer::install(&helpViewer);
  const int status =
      line.withoutDialog ? runWithoutDialog(line, ppd) : runDialog(line, ppd, helpViewer);
  HelpViewer::install(nullptr);
  Toolkit::install(nullptr);
  return status;
}

int print(CommandLine line, int& argc, char** argv) {
  if (line.sample) {
    line.ppd = samples().ppd;
    if (!line.namesDocument) line.job.document = samples().document;
    setRootFolder(samples().root);
  }
  if (const std::string problem = inputProblem(line); !problem.empty())
    return refuse(kUsage, problem);
  if (line.furtherDocuments.empty()) takeForStandardInput(line.job);
  if (const std::string problem = documentProblem(line); !problem.empty())
    return refuse(kNotPrinted, problem);
  SharedPPD ppd;
  if (!line.ppd.empty()) {
    Result<PPDPtr> loaded = loadPPD(line.ppd);
    if (!loaded) return refuse(kNotPrinted, loaded.reason());
    ppd = std::move(*loaded);
  }
  // Panels are made of widgets, which want a screen, seen or unseen.
  if (line.withoutDialog) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (!hasDisplay()) return complain(kNotPrinted, kNoDisplay);
  return show(line, ppd, argc, argv);
}

// Work that is stuck would see the program being taken apart.
int leave(int status) {
  constexpr std::chrono::milliseconds kLongestEnd(500);
  if (!Background::awaitEnd(kLongestEnd)) std::_Exit(status);
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  occupyStandardStreams();
  const Result<CommandLine> line = parseCommandLine({argv + 1, argv + argc});
  if (!line) return refuse(kUsage, line.reason());
  switch (line->wish) {
    case CommandLine::Wish::help:
      return tell(usage());
    case CommandLine::Wish::version:
      return tell("tavrin-print " TAVRIN_VERSION "\n");
    case CommandLine::Wish::print:
      break;
  }
  return leave(print(*line, argc, argv));
}
