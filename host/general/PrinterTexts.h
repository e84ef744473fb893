#pragma once

#include <QString>

#include "host/task/PrinterList.h"

// What is said of a printer beside its name. Parts are separated by a dot, missing ones left out.

namespace tavrin {

// In the list, to tell one printer from another: the queue where the title does not name it, the
// place, whether it is the default, and the state.
QString printerDetails(const Printer& printer);

// Of the chosen printer: the state and the place.
QString stateAndPlace(const Printer& printer);

}  // namespace tavrin
