#include "host/impose/layout/LayoutOptions.h"

#include <array>
#include <charconv>
#include <limits>
#include <string_view>

#include "platform/text/IgnoringCase.h"

namespace tavrin {

namespace {

constexpr int kMostPages = std::numeric_limits<int>::max();
constexpr int kMostOnASheet = 256;
constexpr double kLargestPercent = 10'000;
constexpr double kFinestResolution = 100'000;

template <class T>
std::optional<T> number(std::string_view text) {
  T value{};
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (problem != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

template <class T>
std::optional<T> numberWithin(const OptString& text, T least, T most) {
  const auto value = text ? number<T>(*text) : std::nullopt;
  const bool isSound = value && *value >= least && *value <= most;
  return isSound ? value : std::nullopt;
}

template <class T, std::size_t N>
std::optional<T> meaning(const OptString& text,
                         const std::array<std::pair<const char*, T>, N>& names) {
  for (const auto& [name, value] : names)
    if (text && equalIgnoringCase(*text, name)) return value;
  return std::nullopt;
}

constexpr std::array<std::pair<const char*, bool>, 10> kTruths{{{"true", true},
                                                                {"yes", true},
                                                                {"on", true},
                                                                {"1", true},
                                                                {"shuffle", true},
                                                                {"shuffle-only", true},
                                                                {"false", false},
                                                                {"no", false},
                                                                {"off", false},
                                                                {"0", false}}};

constexpr std::array<std::pair<const char*, PageSet>, 3> kSets{
    {{"all", PageSet::all}, {"odd", PageSet::odd}, {"even", PageSet::even}}};

constexpr std::array<std::pair<const char*, Turn>, 4> kTurns{
    {{"3", Turn::upright}, {"4", Turn::left}, {"5", Turn::right}, {"6", Turn::upsideDown}}};

constexpr std::array<std::pair<const char*, CellOrder>, 8> kOrders{{{"lrtb", {false, false, false}},
                                                                    {"lrbt", {false, false, true}},
                                                                    {"rltb", {false, true, false}},
                                                                    {"rlbt", {false, true, true}},
                                                                    {"tblr", {true, false, false}},
                                                                    {"tbrl", {true, true, false}},
                                                                    {"btlr", {true, false, true}},
                                                                    {"btrl", {true, true, true}}}};

constexpr std::array<std::pair<const char*, Border>, 5> kBorders{
    {{"none", Border::none},
     {"single", Border::single},
     {"single-thick", Border::singleThick},
     {"double", Border::twice},
     {"double-thick", Border::twiceThick}}};

constexpr std::array<std::pair<const char*, Scaling>, 3> kScalings{
    {{"fit", Scaling::fit}, {"fill", Scaling::fill}, {"none", Scaling::actual}}};

constexpr std::array<std::pair<const char*, Position>, 9> kPositions{{{"center", {0, 0}},
                                                                      {"top", {0, 1}},
                                                                      {"bottom", {0, -1}},
                                                                      {"left", {-1, 0}},
                                                                      {"right", {1, 0}},
                                                                      {"top-left", {-1, 1}},
                                                                      {"top-right", {1, 1}},
                                                                      {"bottom-left", {-1, -1}},
                                                                      {"bottom-right", {1, -1}}}};

std::optional<PageRange> range(std::string_view text) {
  const std::size_t dash = text.find('-');
  const std::string_view first = text.substr(0, dash);
  const std::string_view last = dash == text.npos ? first : text.substr(dash + 1);
  const auto from = first.empty() ? 1 : number<int>(first);
  const auto to = last.empty() ? kMostPages : number<int>(last);
  const bool isSound =
      (!first.empty() || !last.empty()) && from && to && *from >= 1 && *to >= *from;
  return isSound ? std::optional(PageRange{*from, *to}) : std::nullopt;
}

std::vector<PageRange> pageRanges(std::string_view text) {
  std::vector<PageRange> ranges;
  for (std::size_t comma = 0; comma != text.npos;) {
    comma = text.find(',');
    const auto next = range(text.substr(0, comma));
    if (!next) return {};
    ranges.push_back(*next);
    if (comma != text.npos) text.remove_prefix(comma + 1);
  }
  return ranges;
}

// The options under the names that they are asked for.
class Reader {
 public:
  explicit Reader(const OptionList& theOptions) : options(theOptions) {}

  OptString text(const char* name) const { return optionValue(options, name); }
  bool isTrue(const char* name) const { return meaning(text(name), kTruths).value_or(false); }
  template <class Names>
  auto one(const char* name, const Names& names) const {
    return meaning(text(name), names);
  }
  std::optional<double> share(const char* name) const {
    const auto percent = numberWithin(text(name), 0.1, kLargestPercent);
    return percent ? std::optional(*percent / 100) : std::nullopt;
  }

 private:
  const OptionList& options;
};

Scaling wordedScaling(const Reader& reader) {
  if (const auto named = reader.one("print-scaling", kScalings)) return *named;
  if (reader.isTrue("fit-to-page") || reader.isTrue("fitplot")) return Scaling::fit;
  return reader.isTrue("fill") ? Scaling::fill : Scaling::usual;
}

// A number says more than a word.
void readScaling(const Reader& reader, LayoutOptions& layout) {
  layout.scaling = wordedScaling(reader);
  layout.ppi = numberWithin(reader.text("ppi"), 1.0, kFinestResolution);
  const auto ofActual = reader.share("natural-scaling");
  if (const auto ofUsual = reader.share("scaling")) {
    layout.scaling = Scaling::usual;
    layout.share = *ofUsual;
  } else if (ofActual || layout.ppi) {
    layout.scaling = Scaling::actual;
    layout.share = ofActual.value_or(1);
  }
}

std::optional<Turn> orientation(const Reader& reader) {
  if (const auto named = reader.one("orientation-requested", kTurns)) return named;
  return reader.isTrue("landscape") ? std::optional(Turn::left) : std::nullopt;
}

}  // namespace

LayoutOptions layoutOptions(const OptionList& options) {
  const Reader reader(options);
  LayoutOptions layout;
  layout.ranges = pageRanges(reader.text("page-ranges").value_or(""));
  layout.set = reader.one("page-set", kSets).value_or(layout.set);
  layout.orientation = orientation(reader);
  layout.numberUp = numberWithin(reader.text("number-up"), 1, kMostOnASheet).value_or(1);
  layout.order = reader.one("number-up-layout", kOrders).value_or(layout.order);
  layout.border = reader.one("page-border", kBorders).value_or(layout.border);
  layout.booklet = reader.isTrue("booklet");
  layout.position = reader.one("position", kPositions).value_or(layout.position);
  readScaling(reader, layout);
  return layout;
}

}  // namespace tavrin
