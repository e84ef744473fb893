#pragma once

#include <string>

#include <QString>

#include "host/task/ScalingField.h"

// The settings of a job in words for controls.

namespace tavrin {

// What a value of a setting of the table is called; a value without a name of its own is shown as
// it is.
QString valueText(const std::string& option, const std::string& value);

// A side of two-sided printing where the person has to put the paper in again.
QString byHandText(const std::string& sides);

QString scalingText(ScalingField::Way way);

}  // namespace tavrin
