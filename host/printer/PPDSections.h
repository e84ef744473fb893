#pragma once

#include <string>
#include <vector>

#include "ppd/CupsHandles.h"

// What a PPD offers to a person.

namespace tavrin {

// A group of options. They are the PPD's.
struct PPDSection {
  std::string keyword;
  std::string title;  // with the titles of the groups around it in front
  std::vector<const ppd_option_t*> options;
};

// Every option of the PPD with its group, in the order of the file.
std::vector<PPDSection> sectionsOf(const ppd_file_t& ppd);

// The choices of an option that a person can pick: each keyword once, without the one that only
// stands for a value of the person's own, unless that one is marked.
std::vector<const ppd_choice_t*> pickableChoices(const ppd_option_t& option, ppd_file_t& ppd);

}  // namespace tavrin
