#pragma once

#include <cstddef>
#include <span>

#include <cups/ppd.h>

// The arrays of a PPD's records, to be walked with a range-for. They are the PPD's.

namespace tavrin {

template <class Record>
std::span<Record> recordsIn(Record* first, int count) {
  return {first, first != nullptr && count > 0 ? static_cast<std::size_t>(count) : 0};
}

inline std::span<ppd_group_t> groupsOf(const ppd_file_t& ppd) {
  return recordsIn(ppd.groups, ppd.num_groups);
}
inline std::span<ppd_group_t> subgroupsOf(const ppd_group_t& group) {
  return recordsIn(group.subgroups, group.num_subgroups);
}
inline std::span<ppd_option_t> optionsOf(const ppd_group_t& group) {
  return recordsIn(group.options, group.num_options);
}
inline std::span<ppd_choice_t> choicesOf(const ppd_option_t& option) {
  return recordsIn(option.choices, option.num_choices);
}

}  // namespace tavrin
