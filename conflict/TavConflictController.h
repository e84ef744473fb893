#pragma once

#include <memory>
#include <string>
#include <vector>

#include <cups/ppd.h>

#include "conflict/ConflictRules.h"
#include "conflict/ConflictTexts.h"
#include "conflict/ConflictWindow.h"
#include "conflict/InstalledCartridges.h"
#include "conflict/SelectedPaper.h"
#include "platform/contract/PrintJob.h"
#include "platform/toolkit/Toolkit.h"
#include "ppd/PDEModel.h"

namespace tavrin {

// Posted when a conflict window has changed the model, with the window's OK button: every panel's
// controls follow.
inline const std::string ConflictControllerChangeNotification =
    "ConflictController calling a UI CHANGE";

// Finds the settings of one panel that the printer cannot honour together, and leads the user out
// of them, one window at a time.
//
// Settings, page format, PPD and model are borrowed from the panel; each may be null, but for the
// model.
class TavConflictController {
 public:
  static std::unique_ptr<TavConflictController> initWithSettings(const PMPrintSettings* settings,
                                                                 const PMPageFormat* pageFormat,
                                                                 ppd_file_t* currentPPD,
                                                                 PDEModel* andPDEModel);
  ~TavConflictController();
  TavConflictController(const TavConflictController&) = delete;
  TavConflictController& operator=(const TavConflictController&) = delete;

  // --- Detection ---

  // The codes of all conflicts that are present now, ascending: the order of their priority. What
  // each code means is in ConflictRules.cpp. Reads the cartridge file; changes nothing.
  std::vector<int> validateConflict() const;

  // The paper's name in "PageSize", old names brought to today's; absent without a paper.
  OptString selectedPaperSize() const { return SelectedPaper(mPageFormat).todaysName(); }
  // Whether the layout puts two or more columns of pages on a sheet.
  bool hasPagesPerSheet() const { return hasSeveralColumns(mPrintSetting); }
  bool isMediaTypePhoto(const OptString& paperType) const { return isPhotoPaper(paperType); }
  bool isPaperSizeEnvelope(const OptString& paperSize) const { return isEnvelope(paperSize); }
  bool isPaperSizeBanner(const OptString& paperSize) const { return isBanner(paperSize); }
  // What the cartridge preferences file of the printer's model says; false where it says nothing.
  // Each reads the file.
  bool isPhotoCartInstalled() const {
    return InstalledCartridges::read(mLocalPPD).isPhotoInstalled();
  }
  bool isColorCartOnly() const { return InstalledCartridges::read(mLocalPPD).isColorOnly(); }

  // --- Windows ---

  // Shows one window after the other until no conflict is left; returns early when the window that
  // a conflict needs is missing, and when the program ends meanwhile. Missing windows are looked
  // for again each time. Without the Instructions window the steps count as shown.
  //
  // The host may release the panel, and with it this object, while a window is up. The caller
  // therefore touches nothing of the panel after this call.
  void processConflict();

  // Fill a window: MsgTwo for the mirror (0) or pages per sheet (1), MsgFive for the paper size
  // (0), printing in black (1) or the cartridges (2). Any other kind only gets the texts that the
  // window always has.
  void composeMsgOne() { texts().fillMsgOne(msgOne); }
  void composeMsgTwo(int kind) { texts().fillMsgTwo(msgTwo, kind); }
  void composeMsgFive(int kind) { texts().fillMsgFive(msgFive, kind); }

  // A choice button was clicked: when it is on now, the others of its window go off.
  void clickFirstButton_MsgOne(Button& sender) { msgOne.follow(firstChoice, sender); }
  void clickSecondButton_MsgOne(Button& sender) { msgOne.follow(secondChoice, sender); }
  void clickThirdButton_MsgOne(Button& sender) { msgOne.follow(thirdChoice, sender); }
  void clickFirstButton_MsgTwo(Button& sender) { msgTwo.follow(firstChoice, sender); }
  void clickSecondButton_MsgTwo(Button& sender) { msgTwo.follow(secondChoice, sender); }
  void clickThirdButton_MsgTwo(Button& sender) { msgTwo.follow(thirdChoice, sender); }
  void clickFirstButton_MsgFive(Button& sender) { msgFive.follow(firstChoice, sender); }
  void clickSecondButton_MsgFive(Button& sender) { msgFive.follow(secondChoice, sender); }

  // OK: takes the window down and does what the selected choice says. May end this object's life,
  // as processConflict may.
  void clickOkButton_MsgOne(Button&) { answer(MessageWindow::msgOne); }
  void clickOkButton_MsgTwo(Button&) { answer(MessageWindow::msgTwo); }
  void clickOkButton_MsgFive(Button&) { answer(MessageWindow::msgFive); }

  // Any of the four windows closes, by whatever hand.
  void windowWillClose();

  // Fills the Instructions window with an InstructionKind; any other kind only sets the title.
  void composeInstructionMsg(signed char kind);

 private:
  TavConflictController(const PMPrintSettings* settings, const PMPageFormat* pageFormat,
                        ppd_file_t* ppd, PDEModel* pdeModel);

  std::vector<const ConflictRule*> conflictsNow() const;
  ConflictTexts texts() const { return {*model, mPageFormat, mLocalPPD}; }
  void loadMissingWindows();
  InterfaceBindings bindings();
  ConflictWindow& windowOf(MessageWindow window);
  void compose(const ConflictKind& kind);
  // Show a window and wait for its end. False when no other window may follow: the conflict's
  // window is missing, the program is ending, or this object is gone.
  bool show(const ConflictKind& kind);
  bool runWindow(Window& window);
  void answer(MessageWindow answered);
  void takeWayOut(const ConflictKind& kind, Choice choice);

  const PMPageFormat* mPageFormat;
  const PMPrintSettings* mPrintSetting;
  ppd_file_t* mLocalPPD;
  PDEModel* model;

  ConflictWindow msgOne{"MsgOne", {2, 2, 1}};
  ConflictWindow msgTwo{"MsgTwo", {2, 1, 1}};
  ConflictWindow msgFive{"MsgFive", {2, 1}};
  Outlet<Window> ibInstructionWindow;
  Outlet<Label> ibInstructionText;

  // False once a window was not answered because the program is ending.
  bool canShowWindows = true;
  // More than one only where the first ones lacked a window: outlets may refer to objects of any of
  // them.
  std::vector<std::shared_ptr<LoadedInterface>> windows;
  // Expires with this object, for operations that must notice that they outlived it.
  std::shared_ptr<const bool> life = std::make_shared<const bool>(true);
};

}  // namespace tavrin
