// tavrin-replay: a Print dialog that follows a script.

#include <fstream>
#include <iostream>
#include <memory>

#include <QApplication>

#include "host/panels/PlugInLoader.h"
#include "host/panels/TrustedBundles.h"
#include "platform/files/RootFolder.h"
#include "platform/files/StandardStreams.h"
#include "platform/qt/toolkit/QtToolkit.h"
#include "platform/text/Quoted.h"
#include "platform/text/Visible.h"
#include "replay/program/Options.h"
#include "replay/session/RecordingHelpViewer.h"
#include "replay/session/Replayer.h"

using namespace tavrin;

namespace {

constexpr char kProgram[] = "tavrin-replay";

enum ExitStatus { everythingOk = 0, somethingNotOk = 1, cannotStart = 2, windowUnanswered = 3 };

int giveUp(const std::string& reason) {
  writeError(kProgram, reason);
  return cannotStart;
}

// The off-screen platform keeps saying what it cannot do without a screen.
void showMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (!message.startsWith("This plugin does not support"))
    std::cerr << visibleLines(message.toStdString()) << '\n';
}

bool isBlank(const std::string& line) {
  return line.find_first_not_of(" \t\r\n\v\f") == std::string::npos;
}

// Texts of a script or a PPD may hold bytes that are not UTF-8; a reply may not. What is made
// visible in it means the same in JSON. Empty, or why it could not be written.
std::string write(const Json& reply) {
  return writeOutput(reply.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n');
}

int outputFailed(const std::string& reason) {
  return giveUp("Standard output cannot be written: " + reason + ".");
}

int playScript(std::istream& script, Replayer& replayer, const WindowAnswers& windows) {
  bool allOk = true;
  while (const auto line = nextLine(script)) {
    if (line->size() <= kScriptLineLimit && isBlank(*line)) continue;
    const Json reply = replayer.play(*line);
    if (const std::string problem = write(reply); !problem.empty()) return outputFailed(problem);
    if (windows.ranOut()) return windowUnanswered;
    allOk = allOk && reply["ok"].get<bool>();
  }
  return allOk ? everythingOk : somethingNotOk;
}

int play(std::istream& script, PDEPlugIn& plugIn, QtToolkit& toolkit, Screenshots& pictures) {
  EventLog log;
  const RecordingHelpViewer helpViewer(log);
  WindowAnswers windows(toolkit, log, pictures);
  Replayer replayer(plugIn, log, windows, pictures);
  return playScript(script, replayer, windows);
}

// A picture that is missing spoils a success; it does not hide what the replies say.
int statusWithPictures(int status, const Screenshots& pictures) {
  if (pictures.failure().empty()) return status;
  const int spoilt = giveUp(pictures.failure());
  return status == everythingOk ? spoilt : status;
}

Result<std::unique_ptr<std::istream>> scriptOf(const Options& options) {
  if (options.script.empty()) {
    if (!canReadStandardInput())
      return Failure{"Standard input is closed, so there is no script. Name a file."};
    return std::make_unique<std::istream>(std::cin.rdbuf());
  }
  auto file = std::make_unique<std::ifstream>(options.script, std::ios::binary);
  if (!*file || std::filesystem::is_directory(options.script))
    return Failure{"The script " + quoted(options.script.string()) + " cannot be read."};
  return std::unique_ptr<std::istream>(std::move(file));
}

Result<LoadedPlugIn> plugInFor(const Options& options) {
  if (!options.bundle.empty()) return loadPlugIn(options.bundle);
  const auto folder = findPlugIn(kOwnPlugInName);
  if (!folder) return Failure{folder.reason()};
  return loadPlugIn(*folder);
}

Result<Screenshots> picturesFor(const Options& options) {
  return options.screenshots.empty() ? Screenshots() : Screenshots::inFolder(options.screenshots);
}

int run(const Options& options, QtToolkit& toolkit) {
  setRootFolder(options.root);
  auto plugIn = plugInFor(options);
  if (!plugIn) return giveUp(plugIn.reason());
  auto pictures = picturesFor(options);
  if (!pictures) return giveUp(pictures.reason());
  auto script = scriptOf(options);
  if (!script) return giveUp(script.reason());
  return statusWithPictures(play(**script, *plugIn->principal, toolkit, *pictures), *pictures);
}

}  // namespace

int main(int argc, char** argv) {
  occupyStandardStreams();
  // Nobody sees the panel's window. Qt gets no arguments, because it would take some of ours.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(showMessage);
  int programNameOnly = 1;
  QApplication application(programNameOnly, argv);
  QApplication::setQuitOnLastWindowClosed(false);

  const auto options = parseOptions({argv, argv + argc});
  if (!options) return giveUp(options.reason() + " --help tells how.");
  if (options->help) {
    const std::string problem = writeOutput(helpText());
    return problem.empty() ? everythingOk : outputFailed(problem);
  }
  QtToolkit toolkit;
  Toolkit::install(&toolkit);
  const int status = run(*options, toolkit);
  Toolkit::install(nullptr);
  return status;
}
