#include "host/printer/CustomPaper.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "host/printer/MarkedOptions.h"
#include "platform/text/IgnoringCase.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

constexpr char kCustomDot[] = "Custom.";
constexpr double kPointsOfInch = 72;
constexpr double kPointsOfMillimetre = kPointsOfInch / 25.4;

struct Unit {
  std::string_view name;
  double points;
};

constexpr std::array kUnits{Unit{"", 1},
                            Unit{"pt", 1},
                            Unit{"in", kPointsOfInch},
                            Unit{"ft", 12 * kPointsOfInch},
                            Unit{"mm", kPointsOfMillimetre},
                            Unit{"cm", 10 * kPointsOfMillimetre},
                            Unit{"m", 1000 * kPointsOfMillimetre}};

// Without zeros at the end.
std::string written(double number) {
  std::array<char, 32> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, 2)
          .ptr;
  std::string digits(text.data(), end);
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.ends_with('.')) digits.pop_back();
  return digits;
}

// Whether a length can be said with two places; what libcups keeps is not more exact than this.
bool isRound(double length) { return std::abs(length * 100 - std::round(length * 100)) < 0.02; }

// The number that the text begins with, which is taken from it.
std::optional<double> takeNumber(std::string_view& text) {
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || !std::isfinite(number) || number <= 0) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

std::optional<double> pointsOf(std::string_view unit) {
  for (const Unit& known : kUnits)
    if (equalIgnoringCase(known.name, unit)) return known.points;
  return std::nullopt;
}

}  // namespace

bool takesCustomPaper(ppd_file_t& ppd) {
  return ppd.variable_sizes && ppdFindCustomOption(&ppd, kPageSizeKey);
}

PaperSize leastPaper(const ppd_file_t& ppd) { return {ppd.custom_min[0], ppd.custom_min[1]}; }

PaperSize mostPaper(const ppd_file_t& ppd) { return {ppd.custom_max[0], ppd.custom_max[1]}; }

PaperSize markedPaperSize(ppd_file_t& ppd) {
  const ppd_choice_t* marked = ppdFindMarkedChoice(&ppd, kPageSizeKey);
  const ppd_size_t* size = marked ? ppdPageSize(&ppd, marked->choice) : nullptr;
  return size ? PaperSize{size->width, size->length} : PaperSize();
}

std::string customPaperChoice(PaperSize size) {
  for (const Unit unit : {Unit{"mm", kPointsOfMillimetre}, Unit{"in", kPointsOfInch}}) {
    const double width = size.width / unit.points;
    const double height = size.height / unit.points;
    if (isRound(width) && isRound(height))
      return kCustomDot + written(width) + "x" + written(height) + std::string(unit.name);
  }
  return kCustomDot + written(size.width) + "x" + written(size.height);
}

std::optional<PaperSize> customPaperSize(const std::string& choice) {
  const std::size_t beginning = std::size(kCustomDot) - 1;
  if (!isCustomChoice(choice) || choice.size() < beginning) return std::nullopt;
  std::string_view text = std::string_view(choice).substr(beginning);
  const auto width = takeNumber(text);
  if (!width || text.empty() || lowerCase(text.front()) != 'x') return std::nullopt;
  text.remove_prefix(1);
  const auto height = takeNumber(text);
  const auto points = pointsOf(text);
  if (!height || !points) return std::nullopt;
  return PaperSize{*width * *points, *height * *points};
}

OptString markedCustomPaper(ppd_file_t& ppd) {
  const ppd_choice_t* marked = ppdFindMarkedChoice(&ppd, kPageSizeKey);
  if (!marked || !isCustomChoice(marked->choice) || !takesCustomPaper(ppd)) return std::nullopt;
  const PaperSize size = markedPaperSize(ppd);
  return size.width > 0 && size.height > 0 ? OptString(customPaperChoice(size)) : std::nullopt;
}

}  // namespace tavrin
