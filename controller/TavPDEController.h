#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <cups/ppd.h>

#include "conflict/TavConflictController.h"
#include "platform/contract/PrintJob.h"
#include "platform/toolkit/Toolkit.h"
#include "ppd/PDEModel.h"
#include "ppd/PDETools.h"

namespace tavrin {

// Posted with the disclosure button when the panel's height has changed.
inline const std::string PDEControllerDisclosureButtonChangedNotification =
    "TavPDEController Disclosure control CHANGED";

// The panel's controller: binds the PPD's options to the model, keeps the model, the controls and
// the PPD's marked choices in step, and answers for summary and help.
class TavPDEController {
 public:
  // --- Set-up (TavPDEController_setup.cpp) ---

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

  PDEModel& pdeModel() { return *mPDEModel; }

  // Whether the controls have been filled.
  bool isFinishedInited() const { return doneInitialized; }

  // --- Marked choices (TavPDEController_sync.cpp) ---

  // Takes the PPD's marked choices into the model and refreshes the controls. A setting without a
  // marked choice stays as it is, but for the mirror, which goes back to its default.
  void updatePDEModelwithMarkedChoices();

  // The choice at a position of an option: its keyword (flag true) or its text (flag false).
  // Absent when there is no such option or position.
  OptString selectedItemFromIndex(long index, const char* withKey, bool andFlag) const;

  // --- View and first filling (TavPDEController_view.cpp) ---

  // The panel's root view, loaded and laid out on the first call; null when the interface file
  // cannot be loaded. It shares ownership of the whole view tree.
  std::shared_ptr<View> mainView();

  // Shows or hides the advanced area and sizes the panel for it.
  void displayAdvancedOptions(bool show);

  // Fills the controls from the PPD, once.
  void initializeControls();

  // Writes the controls' labels and titles.
  void localizeLabels();

  // --- Following the model (TavPDEController_controls.cpp) ---

  // Brings every control in line with the model. Changes the model only by the mirror rule for a
  // paper type that was changed from outside.
  void updateControls();

  // --- Actions (TavPDEController_actions.cpp): the user changed a control ---

  // Those that may clash with another setting end in processConflict, while which the host may
  // release this object: nothing is touched after it.
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

  // --- Summary and help (TavPDEController_summary.cpp) ---

  // One line for each setting that the printer has: label to value, absent where nothing is set.
  std::map<std::string, OptString> infoForSummaryPanel() const;

  // Opens the printer's own help. True when it has none and the dialog should show its own.
  bool shouldShowDefaultHelp() const;

 private:
  TavPDEController(ppd_file_t* ppd, StringEncoding encoding, const PMPrintSettings* settings,
                   const PMPageFormat* format);

  void setSupportedPPDOptionsToPDEModel();
  void setDefaultsToPDEModel();
  void bindDryTime();

  bool isDefault(const std::string& option, const std::string& choice) const;
  void initializeSharpening();
  void initializeDryTime();
  void updateSharpening(const std::string& shown);
  void updateDryTime();
  void updateMirrorValue();
  void hidePaperSourceRow();
  void showAutomaticSharpening();
  void showManualSharpening(int amount);
  void setEndLabelsColor(TextColor color);

  void setMirrorOn();
  void setMirrorOff();
  void storeImageSharpening(long index);

  InterfaceBindings bindings();

  bool doneInitialized = false;
  // The user switched the mirror on by hand: paper types leave it alone.
  bool isMirrorManuallySet = false;
  // The mirror was on in the job's settings: a paper type does not switch it off.
  bool isMirrorSetDuringPreset = false;
  Rect headerViewRect;
  // Its size is the expanded panel's once the view is laid out.
  Rect advancedViewRect;
  bool hasTray2Support = false;

  Outlet<View> ibPDEView;
  Outlet<View> ibAdvancedView;
  Outlet<View> ibHeaderView;
  Outlet<PopUpButton> ibPrintQuality;
  Outlet<Label> ibPrintQualityLabel;
  Outlet<Button> ibBlackAndWhite;
  Outlet<PopUpButton> ibPaperType;
  Outlet<Label> ibPaperTypeLabel;
  Outlet<PopUpButton> ibPaperSource;
  Outlet<Label> ibPaperSourceLabel;
  Outlet<Button> ibDisclosure;
  Outlet<Label> ibDisclosureLabel;
  Outlet<Button> ibMIrror;
  Outlet<Label> ibImageSharpeningLabel;
  Outlet<Button> ibAutoImageSharpening;
  Outlet<Button> ibManualImageSharpening;
  Outlet<Slider> ibManualImageSharpeningSlider;
  Outlet<Label> ibNoneLabel;
  Outlet<Label> ibMostLabel;
  Outlet<PopUpButton> ibDryTimePopUp;
  Outlet<Button> ibDryTimeCheckBox;
  Outlet<Label> ibDryTimeLabel;

  std::unique_ptr<PDEModel> mPDEModel;
  std::unique_ptr<PDETools> pdeTools;
  std::unique_ptr<TavConflictController> conflictController;
  ppd_file_t* mLOcPPD;
  StringEncoding mLocEncoding;
  const PMPrintSettings* mPrintSetting;
  const PMPageFormat* mPageFormat;

  std::shared_ptr<LoadedInterface> panel;
};

}  // namespace tavrin
