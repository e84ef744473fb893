#pragma once

#include <cups/ppd.h>

class QWidget;

namespace tavrin {

class PPDMarks;

// The choices of an option that a check box can show.
inline constexpr char kBooleanOn[] = "True";
inline constexpr char kBooleanOff[] = "False";

// Whether the option is one that a check box can show.
bool isBoolean(const ppd_option_t& option);

// The control for an option of a PPD, after the kind that the PPD gives it. The parent owns it; the
// marks and the option outlive it.
QWidget* makeOptionControl(PPDMarks& marks, const ppd_option_t& option, QWidget* parent);

}  // namespace tavrin
