#pragma once

#include <string>

#include <QString>

#include "host/task/ScalingField.h"

// Words for controls beside those of the settings (see SettingWords.h).

namespace tavrin {

// A side of two-sided printing where the person has to put the paper in again.
QString byHandText(const std::string& sides);

QString scalingText(ScalingField::Way way);

}  // namespace tavrin
