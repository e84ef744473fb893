#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <cups/ppd.h>

#include "conflict/TavConflictController.h"
#include "controller/MirrorRule.h"
#include "controller/PanelControls.h"
#include "controller/PanelView.h"
#include "platform/contract/PrintJob.h"
#include "platform/toolkit/Toolkit.h"
#include "ppd/PDEModel.h"
#include "ppd/PDETools.h"

namespace tavrin {

// Posted with the disclosure button when the panel's height has changed.
inline const std::string PDEControllerDisclosureButtonChangedNotification =
    "TavPDEController Disclosure control CHANGED";

// The panel's controller: binds the PPD's options to the model, answers the user, keeps the model,
// the controls and the PPD's marked choices in step, and answers for summary and help.
class TavPDEController {
 public:
  // PPD, settings and format are borrowed for the controller's life; each may be null.
  static std::unique_ptr<TavPDEController> initializeWithPPD(ppd_file_t* ppd,
                                                             StringEncoding encoding,
                                                             const PMPrintSettings* printSetting,
                                                             const PMPageFormat* andPageFormat);
  ~TavPDEController();
  TavPDEController(const TavPDEController&) = delete;
  TavPDEController& operator=(const TavPDEController&) = delete;

  // The PPD keywords of the settings that this printer has.
  std::vector<std::string> supportedOptions() const;

  PDEModel& pdeModel() { return mPDEModel; }

  // Whether the controls have been filled.
  bool isFinishedInited() const { return doneInitialized; }

  // --- The PPD's choices ---

  // Takes the PPD's marked choices into the model and refreshes the controls. A setting without a
  // marked choice stays as it is, but for the mirror, which goes back to its default.
  void updatePDEModelwithMarkedChoices();

  // The choice at a position of an option: its keyword (flag true) or its text (flag false).
  // Absent when there is no such option or position.
  OptString selectedItemFromIndex(long index, const char* withKey, bool andFlag) const;

  // --- The panel ---

  // The panel's root view, loaded and laid out on the first call. Null when the interface file has
  // none, or cannot be loaded: it is then looked for again on the next call. The view shares
  // ownership of the whole view tree.
  std::shared_ptr<View> mainView();

  // Shows or hides the advanced area and sizes the panel for it.
  void displayAdvancedOptions(bool show) { view.displayAdvancedOptions(show); }

  // Fills the controls from the PPD, once.
  void initializeControls();

  // Writes the controls' labels and titles.
  void localizeLabels() { controls.localizeLabels(); }

  // Brings every control in line with the model. Changes the model only by the mirror rule for a
  // paper type that was changed from outside.
  void updateControls() { controls.follow(); }

  // --- Actions: the user changed a control ---

  // Those that may clash with another setting end in processConflict. While that runs, the host
  // may release this object: nothing is touched after it.
  void disclosureAction(Button& sender);
  void printQualityAction(PopUpButton& sender);
  void paperTypeAction(PopUpButton& sender);
  void paperSourceAction(PopUpButton& sender);
  void dryTimePopUpAction(PopUpButton& sender);
  void blackAndWhiteAction(Button& sender);
  void mirrorAction(Button& sender);
  void imageSharpeningSliderAction(Slider& sender);
  void manualImageSharpeningAction(Button& sender);
  void autoImageSharpeningAction(Button& sender);
  void dryTimeCheckBoxAction(Button& sender);

  // --- Summary and help ---

  // One line for each setting that the printer has: label to value, absent where nothing is set.
  std::map<std::string, OptString> infoForSummaryPanel() const;

  // Opens the printer's own help. True when it has none and the dialog should show its own.
  bool shouldShowDefaultHelp() const;

 private:
  TavPDEController(ppd_file_t* ppd, StringEncoding encoding, const PMPrintSettings* settings,
                   const PMPageFormat* format);

  void choose(Setting setting, long index);
  InterfaceBindings bindings();
  void offerActions(InterfaceBindings& offered);

  ppd_file_t* mLOcPPD;
  StringEncoding mLocEncoding;
  PDETools pdeTools;
  PDEModel mPDEModel;
  std::unique_ptr<TavConflictController> conflictController;

  bool doneInitialized = false;
  // Whether the second tray is installed; never looked at again.
  const bool hasTray2Support;
  MirrorRule mirrorRule{mPDEModel};
  PanelControls controls{mPDEModel, mirrorRule, hasTray2Support};
  PanelView view;
  std::shared_ptr<LoadedInterface> panel;
};

}  // namespace tavrin
