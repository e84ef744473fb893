#pragma once

#include <cups/ppd.h>

#include "platform/text/OptionalString.h"

namespace tavrin {

// The names of the cartridges in the printer's two slots, both from one reading of the cartridge
// preferences file, so that they belong together while the file is being replaced.
struct InstalledCartridges {
  // Reads the file of the printer's model year. Slots that it does not name are absent, both of
  // them without a PPD, a model year or a sound file.
  static InstalledCartridges read(ppd_file_t* ppd);

  bool isPhotoInstalled() const { return second == "Photo Standard"; }
  bool isColorOnly() const { return first == "Color Standard" && second == "Not installed"; }

  OptString first, second;
};

}  // namespace tavrin
