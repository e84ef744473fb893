#include "host/preview/SheetMaker.h"

#include <array>
#include <fstream>
#include <iterator>
#include <utility>

#include "host/preview/HarmlessPPD.h"
#include "host/request/JobOptions.h"
#include "platform/text/IgnoringCase.h"

namespace tavrin {

namespace {

constexpr char kPDF[] = "application/pdf";
constexpr char kSheetsFile[] = "sheets.pdf";
constexpr char kInfoFile[] = "info";
constexpr auto kWell = LimitedCommand::End::well;

constexpr char kNoRoom[] = QT_TRANSLATE_NOOP(
    "tavrin::SheetMaker", "There is no room in the temporary folder for a preview.");
constexpr std::uintmax_t kLeastRoom = 64 << 10;  // bytes

// What the filters make of every document before a printer's own language comes in.
constexpr char kLaidOut[] = "application/vnd.cups-pdf";

constexpr LimitedCommand::Limits kFilterLimits{std::chrono::seconds(60), 1 << 30, 1 << 30};
constexpr LimitedCommand::Limits kInfoLimits{std::chrono::seconds(10), 512 << 20, 16 << 20};

// Formats that need no interpreter of a programming language to be laid out.
bool canLayOut(const std::string& format) {
  return format == kPDF || format.starts_with("image/") || format.starts_with("text/");
}

// The number of copies goes another way, and these two say what the document is.
bool isForFilters(const std::string& name) {
  for (const char* other : {kCopiesOption, kFormatOption, kRawOption})
    if (equalIgnoringCase(name, other)) return false;
  return true;
}

QString shown(const std::string& text) { return QString::fromStdString(text); }
QString shown(const std::filesystem::path& path) { return shown(path.string()); }

std::string contentsOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// A file that was cut off may look like one without pages.
bool hasRoom(const std::filesystem::path& folder) {
  std::error_code problem;
  const auto space = std::filesystem::space(folder, problem);
  return !problem && space.available > kLeastRoom;
}

// Without any page left, the filters succeed and write next to nothing.
bool isPDF(const std::filesystem::path& file) {
  std::array<char, 5> start{};
  std::ifstream(file, std::ios::binary).read(start.data(), start.size());
  return std::string_view(start.data(), start.size()) == "%PDF-";
}

}  // namespace

QStringList filterOptions(const OptionList& options) {
  QStringList arguments;
  for (const auto& [name, value] : options)
    if (isForFilters(name)) arguments << "-o" << shown(optionArgument(name, value));
  return arguments;
}

SheetMaker::SheetMaker(PreviewJob theJob, std::filesystem::path documentFile,
                       std::string documentFormat, QObject* parent)
    : QObject(parent),
      job(std::move(theJob)),
      file(std::move(documentFile)),
      format(std::move(documentFormat)) {
  if (const OptString named = optionValue(job.options, kFormatOption)) format = *named;
}

QString SheetMaker::obstacle() const {
  if (job.ppd.empty() || optionValue(job.options, kRawOption))
    return tr("The printer gets the document as it is, so there is nothing to show.");
  if (!canLayOut(format)) return tr("There is no preview of this kind of document.");
  if (LimitedCommand::find("cupsfilter").isEmpty() || LimitedCommand::find("pdftoppm").isEmpty())
    return tr(
        "A preview needs the programs cupsfilter (package cups) and pdftoppm (package "
        "poppler-utils), which are not installed.");
  return {};
}

void SheetMaker::start() {
  QString reason = obstacle();
  if (reason.isEmpty()) {
    sheets.options = job.options;
    sheets.folder = temporaryHiddenFolder();
    if (sheets.folder) return layOut();
    reason = tr(kNoRoom);
  }
  QMetaObject::invokeMethod(
      this, [=, this] { emit failed(reason); }, Qt::QueuedConnection);
}

void SheetMaker::layOut() {
  const std::string ppd = harmlessPPD(job.ppd);
  if (ppd.empty()) return complain(LimitedCommand::End::failed);
  if (!(std::ofstream(place("printer.ppd"), std::ios::binary) << ppd << std::flush))
    return emit failed(tr(kNoRoom));
  sheets.pdf = place(kSheetsFile);
  QStringList arguments{"-p", shown(place("printer.ppd")), "-m", kLaidOut, "-i", shown(format)};
  arguments += {"-n", "1", "-t", shown(job.title)};
  arguments += filterOptions(job.options);
  // What a printer is told before a PDF is not drawn.
  arguments += {"-o", "emit-jcl=false", shown(file)};
  run("cupsfilter", arguments, kSheetsFile, kFilterLimits,
      [this](LimitedCommand::End end) { end == kWell ? lookAtSheets() : complain(end); });
}

void SheetMaker::run(const char* program, const QStringList& arguments, const char* output,
                     LimitedCommand::Limits limits, std::function<void(LimitedCommand::End)> next) {
  command = std::make_unique<LimitedCommand>(LimitedCommand::Call{
      LimitedCommand::find(program), arguments, sheets.folder->path(), place(output), limits});
  connect(command.get(), &LimitedCommand::ended, this, std::move(next));
  command->start();
}

void SheetMaker::lookAtSheets() {
  if (!hasRoom(sheets.folder->path())) return emit failed(tr(kNoRoom));
  if (!isPDF(sheets.pdf)) return emit nothingLeft();
  run("pdfinfo", {"-f", "1", "-l", "-1", shown(sheets.pdf)}, kInfoFile, kInfoLimits,
      [this](LimitedCommand::End end) {
        sheets.list = sheetsFromInfo(contentsOf(place(kInfoFile)));
        end == kWell && !sheets.list.empty() ? lookAtDocument()
                                             : complain(LimitedCommand::End::failed);
      });
}

// The filters do not tell which pages are on a sheet; for that their number must be known.
void SheetMaker::lookAtDocument() {
  if (format != kPDF) {
    sheets.documentPages = format.starts_with("image/") ? 1 : 0;
    return emit made(sheets);
  }
  run("pdfinfo", {shown(file)}, kInfoFile, kInfoLimits, [this](LimitedCommand::End) {
    sheets.documentPages = pagesFromInfo(contentsOf(place(kInfoFile)));
    emit made(sheets);
  });
}

void SheetMaker::complain(LimitedCommand::End end) {
  std::error_code none;
  if (!std::filesystem::exists(file, none))
    return emit failed(tr("The document is no longer there."));
  emit failed(end == LimitedCommand::End::slow
                  ? tr("Laying the document out takes too long for a preview. It can be printed "
                       "all the same.")
                  : tr("The document could not be laid out for a preview: it is damaged, or too "
                       "large."));
}

}  // namespace tavrin
