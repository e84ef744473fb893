#include "host/preview/SheetList.h"

#include <algorithm>
#include <sstream>
#include <string>

namespace tavrin {

namespace {

constexpr std::string_view kCount = "\nPages:";

// What follows the last such text, up to the end of its line; empty without one.
std::string_view valueAfterLast(std::string_view info, std::string_view key) {
  const std::size_t at = info.rfind(key);
  if (at == std::string_view::npos) return {};
  info.remove_prefix(at + key.size());
  return info.substr(0, info.find('\n'));
}

// "Page    2 size:  612 x 792 pts (letter)" or "Page    2 rot:   90"
void takeLine(const std::string& line, std::vector<Sheet>& sheets) {
  std::istringstream words(line);
  words.imbue(std::locale::classic());
  std::string page, what, times;
  std::size_t number = 0;
  words >> page >> number >> what;
  if (page != "Page" || number < 1 || number > sheets.size()) return;
  Sheet& sheet = sheets[number - 1];
  if (what == "size:") words >> sheet.width >> times >> sheet.height;
  if (what == "rot:") words >> sheet.rotation;
}

bool isSound(const Sheet& sheet) {
  const bool isTurnedWell = sheet.rotation % 90 == 0 && sheet.rotation >= 0 && sheet.rotation < 360;
  return sheet.width > 0 && sheet.height > 0 && isTurnedWell;
}

// 0 where the number is not there.
int countIn(std::string_view info) {
  std::istringstream text{std::string(valueAfterLast(info, kCount))};
  int count = 0;
  return text >> count ? std::max(count, 0) : 0;
}

}  // namespace

std::vector<Sheet> sheetsFromInfo(std::string_view info) {
  const auto count = static_cast<std::size_t>(countIn(info));
  if (count == 0 || count > info.size()) return {};  // there are two lines a page
  std::vector<Sheet> sheets(count);
  std::istringstream lines{std::string(info.substr(info.rfind(kCount)))};
  for (std::string line; std::getline(lines, line);) takeLine(line, sheets);
  return std::ranges::all_of(sheets, isSound) ? sheets : std::vector<Sheet>();
}

}  // namespace tavrin
