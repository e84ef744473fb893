#include "host/prepare/DocumentPreparer.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include "host/document/DocumentName.h"
#include "host/prepare/DocumentLook.h"
#include "host/prepare/FilterCall.h"
#include "host/prepare/Imposer.h"
#include "host/prepare/Imposition.h"
#include "host/request/JobOptions.h"
#include "host/request/PageRanges.h"

namespace tavrin {

namespace {

namespace fs = std::filesystem;

constexpr char kPreparedFile[] = "prepared.pdf";
constexpr char kTextFile[] = "text.pdf";
constexpr char kTurnsFile[] = "turns";
constexpr int kSlow = -1;  // beside the exit statuses

// A picture that must be decoded takes four bytes for each of its dots.
constexpr LimitedCommand::Limits kImposerLimits{
    std::chrono::seconds(120), imposerMemory(std::uint64_t(3) << 30), std::uint64_t(4) << 30};

QString shown(const std::string& text) { return QString::fromStdString(text); }
QString nameOf(const DocumentFacts& document) { return shown(nameInWords(document.document)); }

// The first one, with the pages of all.
DocumentFacts inOne(const std::vector<DocumentFacts>& documents) {
  DocumentFacts all = documents.front();
  const auto isKnown = [](const DocumentFacts& document) { return document.pages > 0; };
  for (std::size_t next = 1; next < documents.size(); ++next) all.pages += documents[next].pages;
  if (!std::ranges::all_of(documents, isKnown)) all.pages = 0;
  return all;
}

}  // namespace

QString whyNoPage(const DocumentFacts& document, const OptionList& options) {
  const std::string ranges = optionValue(options, kPageRangesOption).value_or("");
  const std::string set = optionValue(options, kPageSetOption).value_or("");
  if (document.pages == 0 || pagesInRanges(ranges, set, document.pages) > 0) return {};
  const QString sentence =
      document.pages == 1 ? DocumentPreparer::tr(
                                "“%1” has only one page, and that is not to be printed. Choose "
                                "other pages.")
                          : DocumentPreparer::tr(
                                "“%1” has %n pages, none of which is to be printed. Choose other "
                                "pages.",
                                nullptr, document.pages);
  return sentence.arg(nameOf(document));
}

DocumentPreparer::DocumentPreparer(Preparation preparation, QObject* parent)
    : QObject(parent), wanted(std::move(preparation)) {
  if (const OptString format = optionValue(wanted.options, kFormatOption))
    for (DocumentFacts& document : wanted.documents) document.format = *format;
  if (goTogether(wanted.documents, wanted.options))
    batches.push_back(wanted.documents);
  else
    for (const DocumentFacts& document : wanted.documents) batches.push_back({document});
}

void DocumentPreparer::start() {
  QMetaObject::invokeMethod(this, &DocumentPreparer::prepareNext, Qt::QueuedConnection);
}

void DocumentPreparer::prepareNext() {
  if (done.size() == batches.size()) return emit prepared(done);
  prepare(batches[done.size()]);
}

void DocumentPreparer::prepare(const Batch& batch) {
  const DocumentFacts& first = batch.front();
  const bool canBeLaidOut = isPDF(first.format) || isPicture(first.format) || isText(first.format);
  if (batch.size() == 1) {
    if (const QString why = whyNoPage(first, wanted.options); !why.isEmpty())
      return emit nothingLeft(why);
    const bool mustBe = mustBeImposed(first, wanted.options) || wanted.wholeSheets ||
                        (wanted.isForFile && isPicture(first.format));
    if (wanted.ppd.empty() || !canBeLaidOut || !mustBe) return passOn(first);
  }
  if (!first.problem.empty()) return fail(shown(first.problem));
  folder = temporaryHiddenFolder();
  if (!folder) return complain(first, int(Imposed::cannotWrite));
  isText(first.format) ? layOutText(first) : impose(batch);
}

void DocumentPreparer::passOn(const DocumentFacts& document) {
  const OptionList options =
      isText(document.format) ? withTextMargins(wanted.options, wanted.paper) : wanted.options;
  done.push_back({document.document, document.file, document.format, options, document});
  start();  // by way of the event loop, as there may be very many
}

void DocumentPreparer::layOutText(const DocumentFacts& text) {
  const std::string title = wanted.title.empty() ? documentName(text.document) : wanted.title;
  const auto call =
      filterCall({folder->path(), text.file, text.format, wanted.ppd, title,
                  withTextMargins(optionsOfText(wanted.options), wanted.paper), kPDF, kTextFile});
  if (!call) return complain(text, int(Imposed::cannotWrite));
  run(*call, [=, this](int status) {
    if (status != 0) return complain(text, status == kSlow ? kSlow : int(Imposed::damaged));
    DocumentFacts pages = text;
    pages.file = call->output;
    pages.format = kPDF;
    impose({pages});
  });
}

void DocumentPreparer::impose(const Batch& batch) {
  QStringList arguments = imposerArguments(wanted.paper, wanted.options);
  if (wanted.wholeSheets) arguments << "--whole-sheets";
  arguments << "--turns" << shown((folder->path() / kTurnsFile).string());
  for (const DocumentFacts& document : batch)
    arguments << shown(document.format) << shown(document.file.string());
  run({imposer(), arguments, folder->path(), folder->path() / kPreparedFile, kImposerLimits},
      [this](int status) { take(status); });
}

void DocumentPreparer::take(int status) {
  const Batch& batch = batches[done.size()];
  const DocumentFacts& first = batch.front();
  if (status != 0)
    return complain(first, hasRoom(folder->path()) ? status : int(Imposed::cannotWrite));
  std::string turns;
  std::ifstream(folder->path() / kTurnsFile) >> turns;
  done.push_back({first.document, folder->path() / kPreparedFile, kPDF,
                  optionsOnceImposed(wanted.options), inOne(batch), turns,
                  std::exchange(folder, nullptr)});
  prepareNext();
}

void DocumentPreparer::run(const LimitedCommand::Call& call, const Next& next) {
  command = std::make_unique<LimitedCommand>(call);
  connect(command.get(), &LimitedCommand::ended, this, [=, this](LimitedCommand::End end) {
    next(end == LimitedCommand::End::slow ? kSlow : command->status());
  });
  command->start();
}

void DocumentPreparer::fail(const QString& reason) {
  folder.reset();
  emit failed(reason);
}

void DocumentPreparer::complain(const DocumentFacts& document, int status) {
  const QString name = nameOf(document);
  std::error_code none;
  if (!document.file.empty() && !fs::exists(document.file, none))
    return fail(tr("The document “%1” is no longer there.").arg(name));
  switch (status) {
    case int(Imposed::nothingLeft):
      folder.reset();
      return emit nothingLeft(
          tr("None of the pages to print is in “%1”. Choose other pages.").arg(name));
    case int(Imposed::isProtected):
      return fail(whyProtected(document.document));
    case int(Imposed::unknownPicture):
      return fail(tr("This computer has no program library that reads pictures like “%1”. Save it "
                     "as JPEG or PNG first.")
                      .arg(name));
    case int(Imposed::cannotWrite):
      return fail(tr("There is no room in the temporary folder to lay out “%1”.").arg(name));
    case kSlow:
      return fail(
          tr("Laying out “%1” takes too long. Print fewer of its pages at a time.").arg(name));
    default:
      if (isPicture(document.format)) return fail(whyDamagedPicture(document.document));
      return fail(tr("“%1” cannot be laid out like this: it is damaged, or too large. Without "
                     "settings for its pages it may print all the same.")
                      .arg(name));
  }
}

}  // namespace tavrin
