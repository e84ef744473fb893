#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/support/Cancellation.h"
#include "host/support/OptionList.h"
#include "platform/text/Result.h"
#include "ppd/CupsHandles.h"

// What the print server tells about printers. Every call makes a connection of its own and may be
// made on any thread. One comes back soon after its patience with a server that says nothing is
// over (the reason then says so), and sooner, within about 3 seconds, once it is cancelled.

namespace tavrin {

constexpr Patience kUsualPatience = std::chrono::seconds(4);

struct PrinterState {
  enum class Activity { unknown, idle, printing, stopped };

  Activity activity = Activity::unknown;
  bool acceptsJobs = true;
  std::vector<std::string> reasons;  // keywords such as "media-empty-warning"; "none" left out
  std::string message;               // the server's words; often empty
};

// A printer that a person can pick: a queue, or an instance of one.
struct Printer {
  std::string name;
  std::string instance;  // empty for the queue itself
  bool isDefault = false;
  std::string info;      // what the queue says that it is; may be empty
  std::string location;  // may be empty
  PrinterState state;
  OptionList options;  // the options that the person or the administrator keeps for it
};

// "queue" or "queue/instance", as on lp's command line.
std::string destinationName(const std::string& queue, const std::string& instance);
std::string destinationName(const Printer& printer);

// The state in words for the screen: "Idle", "Stopped: out of paper", "Not accepting jobs".
std::string stateText(const PrinterState& state);

// All queues and instances, by name; the reason when the server cannot be asked. None is no
// failure.
Result<std::vector<Printer>> readPrinters(const CancelFlag& cancel = neverCancelled(),
                                          Patience patience = kUsualPatience);

// One queue's state as it is now; the reason when there is no such queue.
Result<PrinterState> readPrinterState(const std::string& queue,
                                      const CancelFlag& cancel = neverCancelled(),
                                      Patience patience = kUsualPatience);

// The queue's PPD, as loadPPD gives it. The reason when there is no such queue, when it has no PPD,
// or when the PPD cannot be loaded.
Result<PPDPtr> readPrinterPPD(const std::string& queue, const CancelFlag& cancel = neverCancelled(),
                              Patience patience = kUsualPatience);

}  // namespace tavrin
