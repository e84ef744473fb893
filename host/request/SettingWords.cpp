#include "host/request/SettingWords.h"

#include <algorithm>

#include <QCoreApplication>
#include <QLocale>

#include "host/request/JobSetting.h"

namespace tavrin {
namespace {

struct SettingWords {
  Q_DECLARE_TR_FUNCTIONS(SettingWords)
};

struct Words {
  const char* option;
  const char* value;
  const char* text;    // null for a number
  const char* phrase;  // null for none
};

#define WORDS(words) QT_TRANSLATE_NOOP("SettingWords", words)

constexpr Words kWords[] = {
    {kPageSetOption, "all", WORDS("All Pages"), nullptr},
    {kPageSetOption, "odd", WORDS("Odd Pages Only"), WORDS("the odd pages")},
    {kPageSetOption, "even", WORDS("Even Pages Only"), WORDS("the even pages")},
    {kOrientationOption, "", WORDS("Automatic"), nullptr},
    {kOrientationOption, "3", WORDS("Portrait"), WORDS("portrait")},
    {kOrientationOption, "4", WORDS("Landscape"), WORDS("landscape")},
    {kOrientationOption, "5", WORDS("Reverse Landscape"), WORDS("landscape, turned the other way")},
    {kOrientationOption, "6", WORDS("Reverse Portrait"), WORDS("upside down")},
    {kFitOption, "auto", WORDS("Automatic"), nullptr},
    {kFitOption, "fit", WORDS("Fit to Paper"), WORDS("as large as fits")},
    {kFitOption, "fill", WORDS("Fill Paper"), WORDS("filling the paper")},
    {kFitOption, "none", WORDS("Actual Size"), WORDS("in actual size")},
    {kPositionOption, "center", WORDS("Center"), nullptr},
    {kPositionOption, "top-left", WORDS("Top Left"), WORDS("at the top left")},
    {kPositionOption, "top", WORDS("Top"), WORDS("at the top")},
    {kPositionOption, "top-right", WORDS("Top Right"), WORDS("at the top right")},
    {kPositionOption, "left", WORDS("Left"), WORDS("at the left")},
    {kPositionOption, "right", WORDS("Right"), WORDS("at the right")},
    {kPositionOption, "bottom-left", WORDS("Bottom Left"), WORDS("at the bottom left")},
    {kPositionOption, "bottom", WORDS("Bottom"), WORDS("at the bottom")},
    {kPositionOption, "bottom-right", WORDS("Bottom Right"), WORDS("at the bottom right")},
    {kPagesPerSheetOption, "2", nullptr, WORDS("two on a sheet")},
    {kPagesPerSheetOption, "4", nullptr, WORDS("four on a sheet")},
    {kPagesPerSheetOption, "6", nullptr, WORDS("six on a sheet")},
    {kPagesPerSheetOption, "9", nullptr, WORDS("nine on a sheet")},
    {kPagesPerSheetOption, "16", nullptr, WORDS("sixteen on a sheet")},
    {kOrderOnSheetOption, "lrtb", WORDS("Left to Right, Then Down"), nullptr},
    {kOrderOnSheetOption, "lrbt", WORDS("Left to Right, Then Up"),
     WORDS("in rows from left to right and from the bottom up")},
    {kOrderOnSheetOption, "rltb", WORDS("Right to Left, Then Down"),
     WORDS("in rows from right to left")},
    {kOrderOnSheetOption, "rlbt", WORDS("Right to Left, Then Up"),
     WORDS("in rows from right to left and from the bottom up")},
    {kOrderOnSheetOption, "tblr", WORDS("Down, Then Left to Right"), WORDS("in columns")},
    {kOrderOnSheetOption, "tbrl", WORDS("Down, Then Right to Left"),
     WORDS("in columns from right to left")},
    {kOrderOnSheetOption, "btlr", WORDS("Up, Then Left to Right"),
     WORDS("in columns from the bottom up")},
    {kOrderOnSheetOption, "btrl", WORDS("Up, Then Right to Left"),
     WORDS("in columns from the bottom up and from right to left")},
    {kBorderOption, "none", WORDS("None"), nullptr},
    {kBorderOption, "single", WORDS("Single Line"), WORDS("with a border")},
    {kBorderOption, "single-thick", WORDS("Single Thick Line"), WORDS("with a thick border")},
    {kBorderOption, "double", WORDS("Double Line"), WORDS("with a double border")},
    {kBorderOption, "double-thick", WORDS("Double Thick Line"),
     WORDS("with a thick double border")},
    {kBookletOption, kNo, WORDS("Off"), nullptr},
    {kBookletOption, kYes, WORDS("On"), WORDS("as a booklet")},
    {kSheetOrderOption, "normal", WORDS("Off"), nullptr},
    {kSheetOrderOption, kReverse, WORDS("On"), WORDS("in reverse order")},
    {kCollateOption, "uncollated", WORDS("Off"), WORDS("not collated")},
    {kCollateOption, kCollated, WORDS("On"), WORDS("collated")},
    {kSidesOption, kOneSided, WORDS("Off"), nullptr},
    {kSidesOption, "two-sided-long-edge", WORDS("Long-Edge Binding"),
     WORDS("two-sided (long-edge binding)")},
    {kSidesOption, kTwoSidedShortEdge, WORDS("Short-Edge Binding"),
     WORDS("two-sided (short-edge binding)")},
    {kTogetherOption, "", WORDS("Off"), nullptr},
    {kTogetherOption, kTogether, WORDS("On"), WORDS("pictures together")}};

#undef WORDS

const Words* wordsFor(const std::string& option, const std::string& value) {
  const auto place = std::ranges::find_if(
      kWords, [&](const Words& words) { return option == words.option && value == words.value; });
  return place != std::end(kWords) ? &*place : nullptr;
}

}  // namespace

QString valueText(const std::string& option, const std::string& value) {
  const Words* words = wordsFor(option, value);
  if (words && words->text) return SettingWords::tr(words->text);
  if (option == kPagesPerSheetOption) return QLocale().toString(integerValue(value));
  return QString::fromStdString(value);
}

QString valuePhrase(const std::string& option, const std::string& value) {
  const Words* words = wordsFor(option, value);
  return words && words->phrase ? SettingWords::tr(words->phrase) : QString();
}

}  // namespace tavrin
