#pragma once

#include <string>

#include "host/server/PrintServer.h"
#include "host/support/Cancellable.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

// A queue's PPD from the print server, as loadPPD gives it. Makes a connection of its own, which
// gives up as PrintServer says, and may be called on any thread. The reason when there is no such
// queue, when it has no PPD, or when the PPD cannot be loaded.
Cancellable<PPDPtr> readPrinterPPD(const std::string& queue,
                                   const CancelFlag& cancel = neverCancelled(),
                                   Patience patience = kUsualPatience);

}  // namespace tavrin
