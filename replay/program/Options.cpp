#include "replay/program/Options.h"

#include <QCommandLineParser>

#include "platform/qt/base/ArgumentBytes.h"
#include "platform/text/Quoted.h"
#include "platform/text/Utf8.h"
#include "replay/commands/ReplayCommand.h"

namespace tavrin {
namespace {

const char kBundle[] = "bundle";
const char kRoot[] = "root";
const char kScreenshots[] = "screenshots";

void describe(QCommandLineParser& parser) {
  parser.setApplicationDescription(
      "Plays the Print dialog's part for the Print Settings panel, without a display.\n"
      "A script has one JSON object a line; each gets one JSON object in reply.");
  parser.addOption({{"h", "help"}, "Tell how to use the program, and end."});
  parser.addOption({kBundle, "The plug-in bundle (default: the one beside the program).", "DIR"});
  parser.addOption(
      {kRoot, "A folder put before the absolute paths that the plug-in reads.", "DIR"});
  parser.addOption({kScreenshots, "Leave pictures of the panels and windows in a folder.", "DIR"});
  parser.addPositionalArgument("SCRIPT", "The script (default, or -: standard input).", "[SCRIPT]");
}

Result<Options> optionsFrom(const QCommandLineParser& parser) {
  for (const char* name : {kBundle, kRoot, kScreenshots})
    if (parser.isSet(name) && parser.value(name).isEmpty())
      return Failure{std::string("The option --") + name + " needs the name of a folder."};
  const QStringList scripts = parser.positionalArguments();
  if (scripts.size() > 1)
    return Failure{"Only one script can be played; " + quoted(validUtf8(bytesOf(scripts[1]))) +
                   " is one too many."};
  Options options;
  options.bundle = bytesOf(parser.value(kBundle));
  options.root = bytesOf(parser.value(kRoot));
  options.screenshots = bytesOf(parser.value(kScreenshots));
  if (!scripts.isEmpty() && scripts[0] != "-") options.script = bytesOf(scripts[0]);
  options.help = parser.isSet("help");
  return options;
}

}  // namespace

Result<Options> parseOptions(const std::vector<std::string>& arguments) {
  QCommandLineParser parser;
  describe(parser);
  if (!parser.parse(charactersOf(arguments)))
    return Failure{validUtf8(bytesOf(parser.errorText().replace('\'', '"')))};
  return optionsFrom(parser);
}

std::string helpText() {
  QCommandLineParser parser;
  describe(parser);
  std::string text = parser.helpText().toStdString() + "\nCommands (the field \"do\"):\n";
  for (const std::string& verb : verbNames()) text += "  " + verb + '\n';
  return text +
         "\nExit status: 0 every reply is ok, 1 one is not, 2 bad usage, no plug-in,\n"
         "or a picture that could not be written, 3 a message window came up and the script\n"
         "had no answer left for it.\n";
}

}  // namespace tavrin
