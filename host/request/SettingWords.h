#pragma once

#include <string>

#include <QString>

// What the values of the settings of a job are called.

namespace tavrin {

// On a control or in a list: "Landscape". A value without a name of its own is shown as it is.
QString valueText(const std::string& option, const std::string& value);

// In a sentence about the job: "landscape". Empty for a value that goes without saying.
QString valuePhrase(const std::string& option, const std::string& value);

}  // namespace tavrin
