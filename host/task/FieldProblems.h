#pragma once

#include <string>

#include <QString>

#include "host/request/JobSetting.h"
#include "host/support/OptionList.h"

// What is said of settings of a job that cannot be. Each is a sentence.

namespace tavrin {

// Of a value that the setting does not have.
QString problemWith(const JobSetting& setting, const std::string& value);

// Of options (see inFirstNames) that ask for a size that pages cannot have.
QString problemWithScaling(const OptionList& options);

// Of a range that holds no page of a document with so many.
QString problemWithRange(const QString& range, int documentPages);

// Of a set, "odd" or "even", in which none of the pages to print is.
QString problemWithPageSet(const std::string& set, int documentPages);

}  // namespace tavrin
