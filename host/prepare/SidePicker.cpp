#include "host/prepare/SidePicker.h"

#include <algorithm>
#include <utility>

#include "host/document/DocumentName.h"
#include "host/prepare/FilterCall.h"
#include "host/prepare/Imposer.h"
#include "host/request/JobOptions.h"
#include "host/request/PageRanges.h"
#include "platform/text/OptionalString.h"

namespace tavrin {

namespace {

constexpr char kPickedFile[] = "side.pdf";

constexpr LimitedCommand::Limits kPickerLimits{
    std::chrono::seconds(60), imposerMemory(std::uint64_t(3) << 30), std::uint64_t(4) << 30};

QString shown(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

SidePicker::SidePicker(PreparedDocument document, const Paper& thePaper, QObject* parent)
    : QObject(parent),
      sheets(std::move(document)),
      paper(thePaper),
      folder(temporaryHiddenFolder()) {}

// A page that is as large as the paper stays as it is.
void SidePicker::start(Side side) {
  if (!folder) {
    QMetaObject::invokeMethod(
        this, [this] { take(int(Imposed::cannotWrite)); }, Qt::QueuedConnection);
    return;
  }
  Paper wholePaper = paper;
  wholePaper.margins = {};
  QStringList arguments =
      imposerArguments(wholePaper, {{kPageSetOption, side == Side::fronts ? "odd" : "even"}});
  arguments << shown(sheets.format) << shown(sheets.file.string());
  command = std::make_unique<LimitedCommand>(LimitedCommand::Call{
      imposer(), arguments, folder->path(), folder->path() / kPickedFile, kPickerLimits});
  connect(command.get(), &LimitedCommand::ended, this, [this] { take(command->status()); });
  command->start();
}

void SidePicker::take(int status) {
  if (status == 0) return emit picked(folder->path() / kPickedFile);
  const QString name = shown(nameInWords(sheets.document));
  if (!folder || !hasRoom(folder->path()))
    return emit failed(
        tr("There is no room in the temporary folder for the sheets of “%1”.").arg(name));
  emit failed(tr("The sheets of “%1” cannot be printed one side at a time. Print it one-sided, or "
                 "fewer of its pages at a time.")
                  .arg(name));
}

bool fitOnOneSide(const std::vector<DocumentFacts>& documents, const OptionList& options) {
  const std::string ranges = optionValue(options, kPageRangesOption).value_or("");
  const std::string set = optionValue(options, kPageSetOption).value_or("");
  int pages = 0;
  for (const DocumentFacts& document : documents) {
    if (document.pages == 0) return false;
    pages += document.pages;
  }
  const OptString booklet = optionValue(options, kBookletOption);
  const bool isBooklet = booklet && *booklet != kNo;
  const int onASide = isBooklet ? 1 : integerValue(optionValue(options, kPagesPerSheetOption));
  return pagesInRanges(ranges, set, pages) <= std::max(onASide, 1);
}

}  // namespace tavrin
