#include "host/task/JobFields.h"

#include <algorithm>

#include <QStringList>

#include "host/request/JobOptions.h"
#include "host/request/OptionAliases.h"
#include "host/request/PageRanges.h"
#include "host/task/FieldProblems.h"

namespace tavrin {
namespace {

constexpr char kUsualCopies[] = "1";

int possibleCopies(int copies) { return std::clamp(copies, 1, kMostCopies); }

QString shown(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

JobFields::JobFields() {
  for (const JobSetting& setting : jobSettings()) settings[setting.option] = {setting.usual()};
}

template <class T>
void JobFields::take(Field<T>& field, T value) {
  if (!field.byHand) field.value = std::move(value);
}

void JobFields::tellChoice(int pagesPerSheetBefore) {
  if (const int pages = pagesPerSheet(); pages != pagesPerSheetBefore)
    emit pagesPerSheetChanged(pages);
  emit changed();
}

void JobFields::tellSuggestion(int pagesPerSheetBefore) {
  emit suggestionTaken();
  tellChoice(pagesPerSheetBefore);
}

// --- Copies and pages ---

void JobFields::setCopies(int copies) {
  copiesField = {possibleCopies(copies), true};
  followChoices();
  emit changed();
}

void JobFields::suggestCopies(int copies) {
  if (copiesField.byHand) return;
  take(copiesField, possibleCopies(copies));
  tellSuggestion(pagesPerSheet());
}

void JobFields::setPages(Pages pages) {
  pagesField = {std::move(pages), true};
  emit changed();
}

void JobFields::suggestPageRange(const QString& range) {
  if (pagesField.byHand) return;
  take(pagesField, Pages{range.isEmpty(), range});
  tellSuggestion(pagesPerSheet());
}

Result<std::string> JobFields::pageRanges() const {
  if (pages().all) return std::string();
  return checkedPageRanges(pages().range);
}

QString JobFields::pagesProblem() const {
  const Result<std::string> ranges = pageRanges();
  if (!ranges) return shown(ranges.reason());
  const std::string& set = value(kPageSetOption);
  if (knownPages == 0 || pagesInRanges(*ranges, set, knownPages) > 0) return {};
  const bool inRange = pagesInRanges(*ranges, "all", knownPages) > 0;
  return inRange ? problemWithPageSet(set, knownPages)
                 : problemWithRange(pages().range.simplified(), knownPages);
}

void JobFields::setDocumentPages(int pages) {
  if (std::exchange(knownPages, pages) != pages) emit suggestionTaken();
}

Contents JobFields::contents() const {
  if (knownDocuments == 0) return Contents::unknown;
  if (knownPictures == knownDocuments) return Contents::pictures;
  return knownPictures == 0 ? Contents::pages : Contents::unknown;
}

void JobFields::setPictures(int pictures, int documents) {
  if (knownPictures == pictures && knownDocuments == documents) return;
  knownPictures = pictures;
  knownDocuments = documents;
  followChoices();
  tellSuggestion(pagesPerSheet());
}

bool JobFields::hasPagesToChoose() const {
  return knownPages != 1 || !pages().all || value(kPageSetOption) != "all";
}

// --- Settings of the table ---

const JobFields::Setting& JobFields::setting(const std::string& option) const {
  return settings.at(option);
}

const std::string& JobFields::value(const std::string& option) const {
  return setting(option).value;
}

std::string JobFields::effectiveValue(const std::string& option) const {
  return option == kPagesPerSheetOption ? std::to_string(pagesPerSheet()) : value(option);
}

void JobFields::setValue(const std::string& option, const std::string& value) {
  const JobSetting* known = findJobSetting(option);
  const OptString meant = known ? known->meant(value) : std::nullopt;
  if (!meant) return;
  const int before = pagesPerSheet();
  settings[option] = {*meant, true};
  followChoices();
  tellChoice(before);
}

// What goes with what was chosen: a person who wants copies wants sets, and several on a sheet
// means several pictures. What options ask for, or the person has set, is left alone.
void JobFields::followChoices() {
  const auto follow = [this](const char* option, bool isWanted, const char* value) {
    if (optionValue(given, option)) return;
    take(settings[option], isWanted ? std::string(value) : findJobSetting(option)->usual());
  };
  follow(kCollateOption, copiesField.byHand && copies() > 1, kCollated);
  follow(kTogetherOption, hasSeveralPictures() && pagesPerSheet() > 1, kTogether);
}

bool JobFields::suggestValue(const std::string& option, const std::string& value) {
  const JobSetting* known = findJobSetting(option);
  const OptString meant = known ? known->meant(value) : std::nullopt;
  if (!meant) return false;
  if (setting(option).byHand) return true;
  const int before = pagesPerSheet();
  take(settings[option], *meant);
  tellSuggestion(before);
  return true;
}

bool JobFields::matters(const std::string& option) const {
  if (option == kPagesPerSheetOption) return !saysYes(value(kBookletOption));
  if (option == kOrderOnSheetOption) return pagesPerSheet() > 1 && !saysYes(value(kBookletOption));
  if (option == kBorderOption) return pagesPerSheet() > 1;
  if (option == kCollateOption) return copies() > 1;
  if (option == kTogetherOption) return hasSeveralPictures();
  return true;
}

const std::string& JobFields::sentValue(const JobSetting& known) const {
  const Setting& field = setting(known.option);
  return field.byHand && !matters(known.option) ? known.usual() : field.value;
}

int JobFields::pagesPerSheet() const {
  return saysYes(value(kBookletOption)) ? 2 : integerValue(value(kPagesPerSheetOption));
}

void JobFields::setPagesPerSheet(int pages) {
  setValue(kPagesPerSheetOption, std::to_string(pages));
}

bool JobFields::suggestPagesPerSheet(int pages) {
  return suggestValue(kPagesPerSheetOption, std::to_string(pages));
}

void JobFields::setScaling(ScalingField::Way way) {
  scalingField.setWay(way);
  emit changed();
}

void JobFields::setScalingPercent(int percent) {
  scalingField.setPercent(percent);
  emit changed();
}

// --- Options ---

void JobFields::suggestPages(const JobRequest& request, const OptionList& options) {
  const OptString copies = optionValue(options, kCopiesOption);
  take(copiesField,
       possibleCopies(request.copies > 1 || !copies ? request.copies : integerValue(copies)));
  const OptString range = optionValue(options, kPageRangesOption);
  const QString pages = shown(request.pageRanges.empty() ? range.value_or("") : request.pageRanges);
  take(pagesField, Pages{pages.isEmpty(), pages});
}

QStringList JobFields::suggestSettings(const OptionList& options) {
  QStringList problems;
  for (const JobSetting& known : jobSettings()) {
    const OptString asked = optionValue(options, known.option);
    const OptString meant = asked ? known.meant(*asked) : known.usual();
    take(settings[known.option], meant.value_or(known.usual()));
    if (!meant) problems << problemWith(known, *asked);
  }
  if (!scalingField.suggest(options)) problems << problemWithScaling(options);
  return problems;
}

QString JobFields::suggest(const JobRequest& request, const OptionList& options) {
  const int before = pagesPerSheet();
  given = inFirstNames(options);
  suggestPages(request, given);
  const QStringList problems = suggestSettings(given);
  followChoices();
  tellSuggestion(before);
  return problems.join(' ');
}

OptionList JobFields::options() const {
  OptionList options;
  const auto add = [&](const std::string& option, const std::string& value,
                       const std::string& usual) {
    const bool says = value != usual || optionValue(given, option);
    if (says && !value.empty()) options.emplace_back(option, value);
  };
  add(kCopiesOption, std::to_string(copies()), kUsualCopies);
  if (const Result<std::string> ranges = pageRanges(); ranges && !ranges->empty())
    options.emplace_back(kPageRangesOption, *ranges);
  for (const JobSetting& known : jobSettings()) add(known.option, sentValue(known), known.usual());
  for (const auto& option : scalingField.options()) options.push_back(option);
  return options;
}

std::vector<std::string> JobFields::optionNames() {
  std::vector<std::string> names{kCopiesOption, kPageRangesOption};
  for (const JobSetting& known : jobSettings()) names.push_back(known.option);
  for (const auto* others : {&ScalingField::optionNames(), &otherNames()})
    names.insert(names.end(), others->begin(), others->end());
  return names;
}

}  // namespace tavrin
