#include "host/preview/SheetMaker.h"

#include <array>
#include <fstream>
#include <iterator>
#include <utility>

#include "host/prepare/DocumentLook.h"
#include "host/prepare/FilterCall.h"
#include "host/preview/UprightTurns.h"
#include "host/request/JobOptions.h"

namespace tavrin {

namespace {

constexpr char kSheetsFile[] = "sheets.pdf";
constexpr char kInfoFile[] = "info";
constexpr auto kWell = LimitedCommand::End::well;

constexpr char kNoRoom[] = QT_TRANSLATE_NOOP(
    "tavrin::SheetMaker", "There is no room in the temporary folder for a preview.");

constexpr LimitedCommand::Limits kInfoLimits{std::chrono::seconds(10), 512 << 20, 16 << 20};

// Formats that need no interpreter of a programming language to be laid out.
bool canLayOut(const std::string& format) {
  return isPDF(format) || isPicture(format) || isText(format);
}

QString shown(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

std::string contentsOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// Without any page left, the filters succeed and write next to nothing.
bool beginsLikePDF(const std::filesystem::path& file) {
  std::array<char, 5> start{};
  std::ifstream(file, std::ios::binary).read(start.data(), start.size());
  return std::string_view(start.data(), start.size()) == "%PDF-";
}

}  // namespace

SheetMaker::SheetMaker(PreparedDocument theDocument, std::string thePPD, const Paper& thePaper,
                       std::string theTitle, QObject* parent)
    : QObject(parent), ppd(std::move(thePPD)), paper(thePaper), title(std::move(theTitle)) {
  sheets.document = std::move(theDocument);
  PreparedDocument& made = sheets.document;
  if (const OptString named = optionValue(made.options, kFormatOption)) made.format = *named;
}

QString SheetMaker::obstacle() const {
  if (ppd.empty() || optionValue(document().options, kRawOption))
    return tr("The printer gets the document as it is, so there is nothing to show.");
  if (!document().facts.problem.empty()) return QString::fromStdString(document().facts.problem);
  if (!canLayOut(document().format)) return tr("There is no preview of this kind of document.");
  if (!hasFilters() || LimitedCommand::find("pdftoppm").isEmpty())
    return tr(
        "A preview needs the programs cupsfilter (package cups) and pdftoppm (package "
        "poppler-utils), which are not installed.");
  return {};
}

void SheetMaker::start() {
  QString reason = obstacle();
  if (reason.isEmpty()) {
    sheets.folder = temporaryHiddenFolder();
    if (sheets.folder) return layOut();
    reason = tr(kNoRoom);
  }
  QMetaObject::invokeMethod(
      this, [=, this] { emit failed(reason); }, Qt::QueuedConnection);
}

void SheetMaker::layOut() {
  const auto call = filterCall({sheets.folder->path(), document().file, document().format, ppd,
                                title, document().options, kLaidOut, kSheetsFile});
  if (!call) return emit failed(tr(kNoRoom));
  sheets.pdf = call->output;
  run(*call, [this](LimitedCommand::End end) { end == kWell ? lookAtSheets() : complain(end); });
}

void SheetMaker::run(const LimitedCommand::Call& call,
                     std::function<void(LimitedCommand::End)> next) {
  command = std::make_unique<LimitedCommand>(call);
  connect(command.get(), &LimitedCommand::ended, this, std::move(next));
  command->start();
}

void SheetMaker::lookAtSheets() {
  if (!hasRoom(sheets.folder->path())) return emit failed(tr(kNoRoom));
  if (!beginsLikePDF(sheets.pdf)) return emit nothingLeft();
  const auto info = sheets.folder->path() / kInfoFile;
  run({LimitedCommand::find("pdfinfo"),
       {"-f", "1", "-l", "-1", shown(sheets.pdf)},
       sheets.folder->path(),
       info,
       kInfoLimits},
      [=, this](LimitedCommand::End end) {
        sheets.list = sheetsFromInfo(contentsOf(info));
        setUpright(sheets.list, document(), paper);
        end == kWell && !sheets.list.empty() ? emit made(sheets)
                                             : complain(LimitedCommand::End::failed);
      });
}

void SheetMaker::complain(LimitedCommand::End end) {
  const QString name = QString::fromStdString(nameInWords(document().document));
  std::error_code none;
  if (!std::filesystem::exists(document().file, none))
    return emit failed(tr("The document “%1” is no longer there.").arg(name));
  const bool isSlow = end == LimitedCommand::End::slow;
  if (!isSlow && isPicture(document().format))
    return emit failed(whyDamagedPicture(document().document));
  emit failed((isSlow
                   ? tr("Laying “%1” out takes too long here. The print server may still print it.")
                   : tr("“%1” could not be laid out: it is damaged, protected, or too large."))
                  .arg(name));
}

}  // namespace tavrin
