#pragma once

#include <filesystem>

#include <cups/ppd.h>

#include "platform/text/OptionalString.h"
#include "ppd/TextEncoding.h"

namespace tavrin {

// The printer's own help. Models up to 2006 have a help book of their own, named after the model;
// later ones, and those in the folder "Drivers", keep it in the driver's bundle. The PPD is
// borrowed and may be null.
class PrinterHelp {
 public:
  PrinterHelp(ppd_file_t* ppd, StringEncoding encoding);

  // Tells the help viewer where the book lies; nothing when nothing is there.
  void registerBook() const;

  // Opens the help; false when the printer has none.
  bool open() const;

 private:
  std::string book() const;

  bool isOlderModel;
  OptString modelName;
  OptString path;               // as the PPD has it; absent when it names none
  std::filesystem::path place;  // on this machine; empty for a path that names nothing
};

}  // namespace tavrin
