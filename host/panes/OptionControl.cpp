#include "host/panes/OptionControl.h"

#include <algorithm>

#include "host/panes/BooleanControl.h"
#include "host/panes/PickManyControl.h"
#include "host/panes/PickOneControl.h"
#include "host/panes/Widgets.h"
#include "ppd/PPDRecords.h"

namespace tavrin {
namespace {

bool hasChoice(const ppd_option_t& option, const std::string& keyword) {
  return std::ranges::any_of(choicesOf(option),
                             [&](const ppd_choice_t& choice) { return choice.choice == keyword; });
}

}  // namespace

bool isBoolean(const ppd_option_t& option) {
  return option.ui == PPD_UI_BOOLEAN && choicesOf(option).size() == 2 &&
         hasChoice(option, kBooleanOn) && hasChoice(option, kBooleanOff);
}

QWidget* makeOptionControl(PPDMarks& marks, const ppd_option_t& option, QWidget* parent) {
  if (option.ui == PPD_UI_PICKMANY) return makeChild<PickManyControl>(marks, option, parent);
  if (isBoolean(option)) return makeChild<BooleanControl>(marks, option, parent);
  return makeChild<PickOneControl>(marks, option, parent);
}

}  // namespace tavrin
