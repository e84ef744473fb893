#pragma once

#include "host/server/DestinationArray.h"

namespace tavrin {

// Adds what the administrator and then the user keep for printers with the command lpoptions, in
// files on this machine: options, instances, and which printer is the default. The environment
// (LPDEST, PRINTER) may name another default. Printers that are not in the array are left out.
void addSavedOptions(DestinationArray& destinations);

}  // namespace tavrin
