#pragma once

#include <string>

#include <cups/ppd.h>

#include "conflict/ConflictKind.h"
#include "conflict/ConflictWindow.h"
#include "platform/contract/PrintJob.h"
#include "ppd/PDEModel.h"

namespace tavrin {

// Says in words what clashes and what each choice leads to. Model, format and PPD are borrowed;
// format and PPD may be null.
struct ConflictTexts {
  // Fill a window for one of its kinds, by ConflictKind::numberInWindow. For any other number only
  // the texts change that the window always has.
  void fillMsgOne(ConflictWindow& window) const;
  void fillMsgTwo(ConflictWindow& window, int kind) const;
  void fillMsgFive(ConflictWindow& window, int kind) const;

  std::string paperTypeLine() const;
  std::string paperSizeLine() const;
  // Absent when no cartridge is at odds with printing in black: the file may have changed since
  // the conflict was found.
  OptString cartridgeLine() const;

  const PDEModel& model;
  const PMPageFormat* format;
  ppd_file_t* ppd;
};

}  // namespace tavrin
