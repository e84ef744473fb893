#pragma once

#include <QString>
#include <QStringList>

#include "host/printer/Paper.h"
#include "host/support/OptionList.h"

// The program that puts pages and pictures on sheets, which belongs to this one.

namespace tavrin {

// Where it is.
QString imposer();

// What its exit status means.
enum class Imposed { well, damaged, usage, isProtected, unknownPicture, nothingLeft, cannotWrite };

// How it is told of the paper and of the options; documents follow, format and file.
QStringList imposerArguments(const Paper& paper, const OptionList& options);

}  // namespace tavrin
