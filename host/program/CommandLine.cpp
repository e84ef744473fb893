#include "host/program/CommandLine.h"

#include <algorithm>

#include <QCommandLineParser>

#include "host/request/JobOptions.h"
#include "platform/qt/base/ArgumentBytes.h"
#include "platform/text/Utf8.h"

namespace tavrin {

namespace {

constexpr const char* kPrinter = "d";
constexpr const char* kPPD = "ppd";
constexpr const char* kSample = "sample";
constexpr const char* kOutput = "output";
constexpr const char* kNoPreview = "no-preview";
constexpr const char* kNoDialog = "no-dialog";
constexpr const char* kSave = "save";
constexpr const char* kCopies = "n";
constexpr const char* kTitle = "t";
constexpr const char* kOption = "o";
constexpr const char* kHelp = "help";
constexpr const char* kVersion = "version";

Failure failure(const std::string& sentence) {
  return {validUtf8(sentence) + " See tavrin-print --help."};
}

// The number of copies; 0 if the text is not a possible number of copies.
int copiesFrom(const QString& text) {
  const int copies = text.toInt();
  return copies <= kMostCopies ? std::max(copies, 0) : 0;
}

JobRequest jobFrom(const QCommandLineParser& parser) {
  JobRequest job;
  const QString destination = parser.value(kPrinter);
  job.printer = bytesOf(destination.section('/', 0, 0));
  job.instance = bytesOf(destination.section('/', 1));
  if (parser.isSet(kCopies)) job.copies = copiesFrom(parser.value(kCopies));
  job.title = bytesOf(parser.value(kTitle));
  for (const QString& text : parser.values(kOption))
    for (const auto& [name, value] : optionsFromArgument(bytesOf(text)))
      setOption(job.options, name, value);
  // An explicit -n 1 overrides the number that is saved for the printer, too.
  if (parser.isSet(kCopies)) setOption(job.options, kCopiesOption, std::to_string(job.copies));
  if (const QStringList documents = parser.positionalArguments(); !documents.isEmpty())
    job.document = bytesOf(documents.front());
  return job;
}

CommandLine filledIn(const QCommandLineParser& parser) {
  CommandLine line;
  line.job = jobFrom(parser);
  line.namesDocument = !parser.positionalArguments().isEmpty();
  line.ppd = bytesOf(parser.value(kPPD));
  line.sample = parser.isSet(kSample);
  line.noPreview = parser.isSet(kNoPreview);
  line.withoutDialog = parser.isSet(kNoDialog);
  line.save = bytesOf(parser.value(kSave));
  for (const QString& document : parser.positionalArguments().mid(1))
    line.furtherDocuments.emplace_back(bytesOf(document));
  if (parser.isSet(kOutput)) line.output = bytesOf(parser.value(kOutput));
  return line;
}

// A number of copies that is impossible, as it was written; absent if there is none.
OptString wrongCopies(const QCommandLineParser& parser) {
  QStringList numbers = parser.values(kCopies);
  if (const OptString option = optionValue(jobFrom(parser).options, kCopiesOption))
    numbers << charactersOf({*option});
  const auto wrong = std::ranges::find_if(numbers, [](const QString& n) { return !copiesFrom(n); });
  return wrong == numbers.end() ? OptString() : bytesOf(*wrong);
}

// What is wrong with arguments that can each be read; empty when nothing is.
std::string disagreement(const QCommandLineParser& parser) {
  if (parser.positionalArguments().count(kStandardInput) > 1)
    return "Standard input can be only one of the documents.";
  if (const OptString wrong = wrongCopies(parser))
    return "“" + *wrong + "” is not a number of copies; a job has 1 to " +
           std::to_string(kMostCopies) + " copies.";
  for (const char* name : {kPrinter, kPPD, kOutput, kSave})
    if (parser.isSet(name) && parser.value(name).isEmpty())
      return std::string(*(name + 1) ? "--" : "-") + name + " needs a value.";
  if (parser.isSet(kPPD) + parser.isSet(kSample) + parser.isSet(kPrinter) > 1)
    return "Only one of -d, --ppd and --sample can be given.";
  if (parser.isSet(kOutput) && !parser.isSet(kPPD) && !parser.isSet(kSample))
    return "--output needs --ppd or --sample: other jobs go to a print queue.";
  if (parser.isSet(kSave) && parser.isSet(kOutput))
    return "Only one of --save and --output can be given.";
  if (parser.isSet(kSave) && parser.positionalArguments().isEmpty())
    return "--save needs a document: name a file, or - for standard input.";
  if (parser.isSet(kSave) != parser.isSet(kNoDialog))
    return "--no-dialog and --save FILE need each other. To print without a dialog, use lp.";
  return {};
}

// usage() is the program's help; the parser only needs to know what takes a value.
void addAll(QCommandLineParser& parser) {
  for (const char* name : {kPrinter, kPPD, kOutput, kSave, kCopies, kTitle, kOption})
    parser.addOption(QCommandLineOption(QString(name), QString(), "value"));
  for (const char* name : {kSample, kNoPreview, kNoDialog, kHelp, kVersion})
    parser.addOption(QCommandLineOption(QString(name)));
}

}  // namespace

Result<CommandLine> parseCommandLine(const std::vector<std::string>& arguments) {
  QCommandLineParser parser;
  addAll(parser);
  // The parser expects the program's name in front.
  if (!parser.parse(QStringList{"tavrin-print"} + charactersOf(arguments)))
    return failure(bytesOf(parser.errorText().replace('\'', '"')));
  if (const std::string problem = disagreement(parser); !problem.empty()) return failure(problem);
  CommandLine line = filledIn(parser);
  if (parser.isSet(kVersion)) line.wish = CommandLine::Wish::version;
  if (parser.isSet(kHelp)) line.wish = CommandLine::Wish::help;
  return line;
}

std::string usage() {
  return "Usage: tavrin-print [-d PRINTER[/INSTANCE]] [--ppd FILE] [--sample] [--output DIR]\n"
         "                    [--no-preview] [-n COPIES] [-t TITLE] [-o NAME=VALUE]...\n"
         "                    [FILE | -]...\n"
         "       tavrin-print --no-dialog --save FILE [-d PRINTER[/INSTANCE] | --ppd FILE]\n"
         "                    [-t TITLE] [-o NAME=VALUE]... [FILE | -]...\n"
         "Shows the Print dialog for documents and prints them, a job each.\n\n"
         "  -d PRINTER[/INSTANCE]  the printer to begin with; else the default printer\n"
         "  --ppd FILE             a printer that has this description and no queue\n"
         "  --sample               the sample printer and, with no FILE, the sample document\n"
         "  --output DIR           where the jobs of a printer without a queue are put,\n"
         "                         each in a folder of its own; else the current folder\n"
         "  --no-preview           does not show how the sheets will come out\n"
         "  --no-dialog --save FILE  saves the sheets as a PDF, as the preview would show\n"
         "                         them for that printer, and asks nothing; FILE is new.\n"
         "                         Where no printer is named, the sheets are the usual\n"
         "                         papers without margins, as for Save as PDF\n"
         "  -n COPIES              how many copies, from 1 to 9999\n"
         "  -t TITLE               the job's name; else the document's\n"
         "  -o NAME=VALUE          an option of the job, as for lp; may be repeated. A value\n"
         "                         that the printer does not have is named as a warning\n"
         "                         and left out; the exit status stays the same\n"
         "  FILE                   a document; - or none is standard input\n"
         "  --help, --version      show this text or the version, and print nothing\n\n"
         "Exit status: 0 printed, 1 cancelled, 2 wrong usage, 3 could not print.\n";
}

}  // namespace tavrin
