#include "ppd/Setting.h"

namespace tavrin {

std::optional<Setting> settingWithKeyword(const OptString& keyword) {
  for (const SettingRow& row : kSettings) {
    if (keyword == row.keyword) return row.setting;
  }
  return std::nullopt;
}

}  // namespace tavrin
