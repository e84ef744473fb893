#pragma once

#include <memory>
#include <string>
#include <vector>

#include <cups/ppd.h>

#include "conflict/InstructionTexts.h"
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

  // --- Detection (TavConflictController_detection.cpp) ---

  // The codes of all conflicts that are present now, ascending: the order of their priority. What
  // each code means stands in the implementation's table. Reads the cartridge file; changes
  // nothing.
  std::vector<int> validateConflict() const;

  // The paper's name in "PageSize", old names brought to today's; absent without a paper.
  OptString selectedPaperSize() const;
  // Whether the layout puts two or more columns of pages on a sheet.
  bool hasPagesPerSheet() const;
  bool isMediaTypePhoto(const OptString& paperType) const;
  bool isPaperSizeEnvelope(const OptString& paperSize) const;
  bool isPaperSizeBanner(const OptString& paperSize) const;
  // What the cartridge preferences file of the printer's model says; false where it says nothing.
  bool isPhotoCartInstalled() const;
  bool isColorCartOnly() const;

  // --- Windows (TavConflictController_windows.cpp, choices in TavConflictController_choices.cpp,
  //     OK in TavConflictController_answers.cpp) ---

  // Shows one window after the other until no conflict is left; returns at once when there is
  // none, when a window is missing, and when the program ends meanwhile.
  //
  // The host may release the panel, and with it this object, while a window is up. The caller
  // therefore touches nothing of the panel after this call.
  void processConflict();

  // Fill a window: MsgTwo for the mirror (0) or pages per sheet (1), MsgFive for the paper size
  // (0), printing in black (1) or the cartridges (2).
  void composeMsgOne();
  void composeMsgTwo(int kind);
  void composeMsgFive(int kind);

  void clickFirstButton_MsgOne(Button& sender);
  void clickSecondButton_MsgOne(Button& sender);
  void clickThirdButton_MsgOne(Button& sender);
  void clickFirstButton_MsgTwo(Button& sender);
  void clickSecondButton_MsgTwo(Button& sender);
  void clickThirdButton_MsgTwo(Button& sender);
  void clickFirstButton_MsgFive(Button& sender);
  void clickSecondButton_MsgFive(Button& sender);

  void clickOkButton_MsgOne(Button& sender);
  void clickOkButton_MsgTwo(Button& sender);
  void clickOkButton_MsgFive(Button& sender);

  // Any of the four windows closes, by whatever hand.
  void windowWillClose();

  // Fills the Instructions window with an InstructionKind; any other kind only sets the title.
  void composeInstructionMsg(signed char kind);

 private:
  TavConflictController(const PMPrintSettings* settings, const PMPageFormat* pageFormat,
                        ppd_file_t* ppd, PDEModel* pdeModel);

  bool loadWindows();
  InterfaceBindings bindings();
  void offerMsgOne(InterfaceBindings& bindings);
  void offerMsgTwo(InterfaceBindings& bindings);
  void offerMsgFive(InterfaceBindings& bindings);
  void showConflict(int code);
  void runWindow(Window& window);
  void selectFirstMsgOne();
  void selectFirstMsgTwo();
  void selectFirstMsgFive();
  void resolveConflictsOfMsgTwo();
  void resolveConflictsOfMsgFive();
  void showInstructionsOfMsgTwo();
  void showInstructionsOfMsgFive();
  void ignoreConflictsOfMsgTwo();
  std::string paperTypeLine() const;
  std::string paperSizeLine() const;
  OptString cartridgeLine() const;
  void setPaperTypeToChoice(const std::string& keyword);
  void setPrintQualityToChoice(const std::string& keyword);
  void setBlackAndWhiteToChoice(const std::string& keyword);

  const PMPageFormat* mPageFormat;
  const PMPrintSettings* mPrintSetting;
  ppd_file_t* mLocalPPD;
  PDEModel* model;

  // Which choice is selected in each window.
  bool isFirstButton_MsgOneClicked = false;
  bool isFirstButton_MsgTwoClicked = false;
  bool isFirstButton_MsgFiveClicked = false;
  bool isSecondButton_MsgOneClicked = false;
  bool isSecondButton_MsgTwoClicked = false;
  bool isSecondButton_MsgFiveClicked = false;
  bool isThirdButton_MsgOneClicked = false;
  bool isThirdButton_MsgTwoClicked = false;

  Outlet<Window> ibMsgOneWindow;
  Outlet<Label> ibLabelA_MsgOne;
  Outlet<Label> ibLabelB_MsgOne;
  Outlet<Label> ibLabelC_MsgOne;
  Outlet<Label> ibLabelD_MsgOne;
  Outlet<Label> ibLabelA_FirstButton_MsgOne;
  Outlet<Label> ibLabelB_FirstButton_MsgOne;
  Outlet<Label> ibLabelA_SecondButton_MsgOne;
  Outlet<Label> ibLabelB_SecondButton_MsgOne;
  Outlet<Label> ibLabelA_ThirdButton_MsgOne;
  Outlet<Button> ibFirstButton_MsgOne;
  Outlet<Button> ibSecondButton_MsgOne;
  Outlet<Button> ibThirdButton_MsgOne;
  Outlet<Button> ibOkButton_MsgOne;

  Outlet<Window> ibMsgTwoWindow;
  Outlet<Label> ibLabelA_MsgTwo;
  Outlet<Label> ibLabelB_MsgTwo;
  Outlet<Label> ibLabelC_MsgTwo;
  Outlet<Label> ibLabelD_MsgTwo;
  Outlet<Label> ibLabelA_FirstButton_MsgTwo;
  Outlet<Label> ibLabelB_FirstButton_MsgTwo;
  Outlet<Label> ibLabelA_SecondButton_MsgTwo;
  Outlet<Label> ibLabelA_ThirdButton_MsgTwo;
  Outlet<Button> ibFirstButton_MsgTwo;
  Outlet<Button> ibSecondButton_MsgTwo;
  Outlet<Button> ibThirdButton_MsgTwo;
  Outlet<Button> ibOkButton_MsgTwo;

  Outlet<Window> ibMsgFiveWindow;
  Outlet<Label> ibLabelA_MsgFive;
  Outlet<Label> ibLabelB_MsgFive;
  Outlet<Label> ibLabelC_MsgFive;
  Outlet<Label> ibLabelD_MsgFive;
  Outlet<Label> ibLabelA_FirstButton_MsgFive;
  Outlet<Label> ibLabelB_FirstButton_MsgFive;
  Outlet<Label> ibLabelA_SecondButton_MsgFive;
  Outlet<Button> ibFirstButton_MsgFive;
  Outlet<Button> ibSecondButton_MsgFive;
  Outlet<Button> ibOkButton_MsgFive;

  Outlet<Window> ibInstructionWindow;
  Outlet<Label> ibInstructionText;

  // False once a window was not answered because the program is ending.
  bool canShowWindows = true;
  // More than one only where the first ones lacked a window: outlets may stand on any of them.
  std::vector<std::shared_ptr<LoadedInterface>> windows;
  // Expires with this object, for operations that must notice that they outlived it.
  std::shared_ptr<const bool> life = std::make_shared<const bool>(true);
};

}  // namespace tavrin
