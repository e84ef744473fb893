#pragma once

#include <string>

namespace tavrin {

// How much something is in the way of printing.
enum class Concern {
  none,
  warning,  // somebody should have a look
  trouble,  // nothing comes out now
};

// Why a printer is in its state, for a person.
struct PrinterReason {
  std::string words;  // "out of paper"; empty for a reason that need not be told
  Concern concern = Concern::none;
};

// Explains a keyword of IPP's "printer-state-reasons", with or without its severity:
// "media-empty-error". One that is not known is told only where it is an error.
PrinterReason explained(const std::string& keyword);

}  // namespace tavrin
