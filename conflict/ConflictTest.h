#pragma once

#include <memory>
#include <string>

#include "conflict/TavConflictController.h"
#include "ppd/PDETools.h"
#include "ppd/PPDKeywords.h"
#include "tests/fakes/FakeJob.h"
#include "tests/fakes/FakePPD.h"
#include "tests/fakes/FakeToolkit.h"
#include "tests/fakes/FreshConflicts.h"
#include "tests/fakes/PrinterRoot.h"

namespace tavrin {

// What a conflict checker finds around it: a printer of 2007, A4 paper, one page a sheet, no
// cartridge file, plain paper in colour, the mirror off.
class ConflictTestPanel {
 public:
  explicit ConflictTestPanel(ppd_file_t* printer) : ppd(printer) {
    model.setPrintQualityOption(ppdFindOption(ppd, kPrintQualityKey));
    model.setPaperTypeOption(ppdFindOption(ppd, kPaperTypeKey));
    model.setBlackAndWhiteOption(ppdFindOption(ppd, kColorModelKey));
    model.setMirrorOption(ppdFindOption(ppd, kMirrorKey));
    setQuality("Automatic");
    setPaper("Plain");
    setColor("Color");
    setMirror("False");
    checker = TavConflictController::initWithSettings(&settings, &format, ppd, &model);
  }

  void setPaper(const OptString& keyword) {
    model.setPaperType(PDETools().getOptionsChoice(keyword, model.paperTypeOption(), false));
    model.setPaperTypeTicket(keyword);
  }
  void setQuality(const OptString& keyword) {
    model.setPrintQuality(PDETools().getOptionsChoice(keyword, model.printQualityOption(), false));
    model.setPrintQualityTicket(keyword);
  }
  void setColor(const OptString& keyword) {
    model.setBlackAndWhite(
        PDETools().getOptionsChoice(keyword, model.blackAndWhiteOption(), false));
    model.setBlackAndWhiteTicket(keyword);
  }
  void setMirror(const OptString& keyword) {
    model.setMirror(PDETools().getOptionsChoice(keyword, model.mirrorOption(), false));
    model.setMIrrorTicket(keyword);
  }

  std::vector<int> codes() const { return checker->validateConflict(); }

  ppd_file_t* ppd;
  FakePrintSettings settings;
  FakePageFormat format;
  PDEModel model;
  std::unique_ptr<TavConflictController> checker;
};

inline const std::string kTestYear = "2007";
inline const std::string kTestModel = "Tavrin P1";

// The printer of such a panel: every option of the family.
inline PPDPtr conflictTestPrinter() {
  return makePPD(fullPrinter(),
                 {"*TavDriverPath: \"/Library/Printers/Tavrin/" + kTestYear + "/Driver.plugin\""});
}

}  // namespace tavrin
