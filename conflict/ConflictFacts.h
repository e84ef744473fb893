#pragma once

#include <cups/ppd.h>

#include "platform/contract/PrintJob.h"
#include "platform/text/OptionalString.h"

namespace tavrin {

class PDEModel;

// What one look at a panel's settings finds.
struct ConflictFacts {
  // Reads the cartridge file of the printer once. Settings, format and PPD may be null: what they
  // would say is then false.
  static ConflictFacts of(const PDEModel& model, const PMPrintSettings* settings,
                          const PMPageFormat* format, ppd_file_t* ppd);

  bool ironOn, transparency, glossy, greetingCard;  // the paper type
  bool banner, envelope;                            // the paper size
  bool severalPages;                                // on a sheet
  bool draft, black, mirrored;
  bool onlyColorCartridge, photoCartridge;
};

// Whether the ticket of a paper type contains "Glossy", in this letter case; false for an absent
// one.
bool isPhotoPaper(const OptString& paperType);

// Whether the layout puts two or more columns of pages on a sheet; false without settings.
bool hasSeveralColumns(const PMPrintSettings* settings);

}  // namespace tavrin
