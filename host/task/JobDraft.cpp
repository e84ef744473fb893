#include "host/task/JobDraft.h"

#include <algorithm>

#include "host/printer/MarkedOptions.h"
#include "host/printer/PPDLoader.h"
#include "host/printer/Paper.h"
#include "host/printer/SheetSequence.h"
#include "host/request/JobOptions.h"
#include "host/request/JobSetting.h"
#include "host/task/ScalingField.h"
#include "platform/text/IgnoringCase.h"

namespace tavrin {

namespace {

constexpr char kAutomatic[] = "auto";

// A printer that turns the paper itself has an option of its own for that.
bool needsTwoPasses(const OptionList& options, ppd_file_t& ppd) {
  const std::string sides = optionValue(options, kSidesOption).value_or("");
  return sides.starts_with("two-sided") && !twoSidedOption(ppd);
}

// Paper without margins the filters fill with a page that is too large for it, and cut off the
// rest. In a file nobody would miss that in time.
void keepPagesWhole(OptionList& options) {
  const bool isAutomatic =
      equalIgnoringCase(optionValue(options, kFitOption).value_or(kAutomatic), kAutomatic);
  const bool isScaled = std::ranges::any_of(ScalingField::optionNames(), [&](const auto& name) {
    return name != kFitOption && optionValue(options, name);
  });
  if (isAutomatic && !isScaled) setOption(options, kFitOption, "auto-fit");
}

}  // namespace

JobRequest JobDraft::request() const {
  JobRequest request = asked;
  const Printer* printer = printers.chosen();
  const Result<std::string> ranges = fields.pageRanges();
  request.printer = printer ? printer->name : "";
  request.instance = printer ? printer->instance : "";
  request.copies = fields.copies();
  request.pageRanges = ranges ? *ranges : "";
  request.options = settings.options();
  return request;
}

OptionList JobDraft::options() const {
  const PrinterSession* session = settings.session();
  return jobOptions(request(), session ? &session->ppd() : nullptr);
}

Preparation JobDraft::preparation(bool isForFile) const {
  Preparation wanted{documents.all()};
  wanted.options = options();
  wanted.title = asked.title;
  const PrinterSession* session = settings.session();
  if (!session) return wanted;
  wanted.ppd = sourceOf(session->sharedPPD());
  wanted.paper = markedPaper(session->ppd());
  wanted.wholeSheets = needsTwoPasses(wanted.options, session->ppd());
  wanted.isForFile = isForFile;
  if (isForFile) keepPagesWhole(wanted.options);
  return wanted;
}

JobSequence::Order JobDraft::order(const std::filesystem::path& output) const {
  const Preparation wanted = preparation(false);
  const PrinterSession* session = settings.session();
  return {wanted, request(), output, wanted.wholeSheets,
          session && comesLastSheetFirst(session->ppd(), wanted.options)};
}

}  // namespace tavrin
