#pragma once

#include <string>
#include <vector>

#include "host/server/PrintServer.h"
#include "host/server/Printer.h"
#include "host/support/Cancellable.h"

// The print server's printers. Every call makes a connection of its own, which gives up as
// PrintServer says, and may be made on any thread.

namespace tavrin {

// All queues and instances, sorted by name; the reason when the server cannot be asked. Having no
// printers is not a failure.
Cancellable<std::vector<Printer>> readPrinters(const CancelFlag& cancel = neverCancelled(),
                                               Patience patience = kUsualPatience);

// One queue's state as it is now, which may be that it is gone; the reason when the server cannot
// be asked.
Cancellable<PrinterState> readPrinterState(const std::string& queue,
                                           const CancelFlag& cancel = neverCancelled(),
                                           Patience patience = kUsualPatience);

}  // namespace tavrin
