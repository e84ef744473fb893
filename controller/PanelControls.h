#pragma once

#include <cups/ppd.h>

#include "controller/MirrorRule.h"
#include "controller/SharpeningControls.h"
#include "platform/toolkit/Toolkit.h"
#include "ppd/PDEModel.h"
#include "ppd/TextEncoding.h"

namespace tavrin {

// The panel's controls and how they follow the model. Model and mirror rule are borrowed.
class PanelControls {
 public:
  // A printer without a second tray has no row for the paper source.
  PanelControls(PDEModel& settings, MirrorRule& rule, bool hasTray2Support)
      : model(settings), mirrorRule(rule), hasPaperSourceRow(hasTray2Support) {}

  void offerOutlets(InterfaceBindings& bindings);

  // Gives up the row for the paper source where the printer needs none; the disclosure row moves
  // up into it. Not to be done twice.
  void layOut();

  // The first filling, from the PPD's choices and defaults.
  void fill(ppd_file_t* ppd, StringEncoding encoding);
  void localizeLabels();
  // Brings every control in line with the model. Changes the model only by the mirror rule for a
  // paper type that was changed from outside.
  void follow();

  void showMirror();
  // Says beside their label which of the advanced options are not as usual, while nobody sees them.
  void sumUpAdvancedOptions();
  SharpeningControls& imageSharpening() { return sharpening; }
  Button& disclosure() { return *ibDisclosure; }

 private:
  bool showsPaperSource() const {
    return hasPaperSourceRow && model.paperSourceOption() != nullptr;
  }
  void fillDryTime(ppd_file_t* ppd, StringEncoding encoding);
  void followMirror();
  void followDryTime();

  PDEModel& model;
  MirrorRule& mirrorRule;
  const bool hasPaperSourceRow;

  Outlet<PopUpButton> ibPrintQuality;
  Outlet<Label> ibPrintQualityLabel;
  Outlet<Button> ibBlackAndWhite;
  Outlet<PopUpButton> ibPaperType;
  Outlet<Label> ibPaperTypeLabel;
  Outlet<PopUpButton> ibPaperSource;
  Outlet<Label> ibPaperSourceLabel;
  Outlet<Button> ibDisclosure;
  Outlet<Label> ibDisclosureLabel;
  Outlet<Label> advancedSummaryLabel;
  Outlet<Button> ibMIrror;
  SharpeningControls sharpening;
  Outlet<PopUpButton> ibDryTimePopUp;
  Outlet<Button> ibDryTimeCheckBox;
  Outlet<Label> ibDryTimeLabel;
};

}  // namespace tavrin
