#include "host/task/JobFields.h"

#include <algorithm>

#include "host/request/JobOptions.h"
#include "host/request/PageRanges.h"

namespace tavrin {
namespace {

int possibleCopies(int copies) { return std::clamp(copies, 1, kMostCopies); }

bool canLayOut(int pages) {
  return std::ranges::find(kPagesPerSheet, pages) != kPagesPerSheet.end();
}

}  // namespace

void JobFields::setCopies(int copies) {
  copiesField = {possibleCopies(copies), true};
  emit changed();
}

void JobFields::suggestCopies(int copies) {
  if (copiesField.byHand) return;
  copiesField.value = possibleCopies(copies);
  emit suggestionTaken();
  emit changed();
}

void JobFields::setPages(Pages pages) {
  pagesField = {std::move(pages), true};
  emit changed();
}

void JobFields::suggestPageRange(const QString& range) {
  if (pagesField.byHand) return;
  pagesField.value = {range.isEmpty(), range};
  emit suggestionTaken();
  emit changed();
}

Result<std::string> JobFields::pageRanges() const {
  if (pages().all) return std::string();
  return checkedPageRanges(pages().range);
}

void JobFields::setPagesPerSheet(int pages) {
  if (!canLayOut(pages)) return;
  perSheetField = {pages, true};
  emit pagesPerSheetChanged(pages);
  emit changed();
}

bool JobFields::suggestPagesPerSheet(int pages) {
  if (!canLayOut(pages)) return false;
  if (perSheetField.byHand) return true;
  perSheetField.value = pages;
  emit suggestionTaken();
  emit changed();
  emit pagesPerSheetChanged(pages);
  return true;
}

QString JobFields::suggest(const JobRequest& request, const OptionList& options) {
  const OptString copies = optionValue(options, kCopiesOption);
  suggestCopies(request.copies > 1 || !copies ? request.copies : integerValue(copies));
  const OptString range = optionValue(options, kPageRangesOption);
  suggestPageRange(
      QString::fromStdString(request.pageRanges.empty() ? range.value_or("") : request.pageRanges));
  const OptString pages = optionValue(options, kPagesPerSheetOption);
  if (suggestPagesPerSheet(pages ? integerValue(pages) : 1)) return {};
  return tr("A sheet can hold 1, 2, 4, 6, 9 or 16 pages, not “%1”.")
      .arg(QString::fromStdString(*pages));
}

}  // namespace tavrin
