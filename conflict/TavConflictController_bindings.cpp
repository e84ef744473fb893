#include "conflict/TavConflictController.h"

// What the interface file "Conflicts" finds in its owner.

namespace tavrin {

InterfaceBindings TavConflictController::bindings() {
  InterfaceBindings offered;
  offerMsgOne(offered);
  offerMsgTwo(offered);
  offerMsgFive(offered);
  offered.outlet("ibInstructionWindow", ibInstructionWindow);
  offered.outlet("ibInstructionText", ibInstructionText);
  offered.windowWillClose = [this] { windowWillClose(); };
  return offered;
}

void TavConflictController::offerMsgOne(InterfaceBindings& offered) {
  offered.outlet("ibMsgOneWindow", ibMsgOneWindow);
  offered.outlet("ibLabelA_MsgOne", ibLabelA_MsgOne);
  offered.outlet("ibLabelB_MsgOne", ibLabelB_MsgOne);
  offered.outlet("ibLabelC_MsgOne", ibLabelC_MsgOne);
  offered.outlet("ibLabelD_MsgOne", ibLabelD_MsgOne);
  offered.outlet("ibLabelA_FirstButton_MsgOne", ibLabelA_FirstButton_MsgOne);
  offered.outlet("ibLabelB_FirstButton_MsgOne", ibLabelB_FirstButton_MsgOne);
  offered.outlet("ibLabelA_SecondButton_MsgOne", ibLabelA_SecondButton_MsgOne);
  offered.outlet("ibLabelB_SecondButton_MsgOne", ibLabelB_SecondButton_MsgOne);
  offered.outlet("ibLabelA_ThirdButton_MsgOne", ibLabelA_ThirdButton_MsgOne);
  offered.outlet("ibFirstButton_MsgOne", ibFirstButton_MsgOne);
  offered.outlet("ibSecondButton_MsgOne", ibSecondButton_MsgOne);
  offered.outlet("ibThirdButton_MsgOne", ibThirdButton_MsgOne);
  offered.outlet("ibOkButton_MsgOne", ibOkButton_MsgOne);
  offered.action<Button>("clickFirstButton_MsgOne:",
                         [this](Button& sender) { clickFirstButton_MsgOne(sender); });
  offered.action<Button>("clickSecondButton_MsgOne:",
                         [this](Button& sender) { clickSecondButton_MsgOne(sender); });
  offered.action<Button>("clickThirdButton_MsgOne:",
                         [this](Button& sender) { clickThirdButton_MsgOne(sender); });
  offered.action<Button>("clickOkButton_MsgOne:",
                         [this](Button& sender) { clickOkButton_MsgOne(sender); });
}

void TavConflictController::offerMsgTwo(InterfaceBindings& offered) {
  offered.outlet("ibMsgTwoWindow", ibMsgTwoWindow);
  offered.outlet("ibLabelA_MsgTwo", ibLabelA_MsgTwo);
  offered.outlet("ibLabelB_MsgTwo", ibLabelB_MsgTwo);
  offered.outlet("ibLabelC_MsgTwo", ibLabelC_MsgTwo);
  offered.outlet("ibLabelD_MsgTwo", ibLabelD_MsgTwo);
  offered.outlet("ibLabelA_FirstButton_MsgTwo", ibLabelA_FirstButton_MsgTwo);
  offered.outlet("ibLabelB_FirstButton_MsgTwo", ibLabelB_FirstButton_MsgTwo);
  offered.outlet("ibLabelA_SecondButton_MsgTwo", ibLabelA_SecondButton_MsgTwo);
  offered.outlet("ibLabelA_ThirdButton_MsgTwo", ibLabelA_ThirdButton_MsgTwo);
  offered.outlet("ibFirstButton_MsgTwo", ibFirstButton_MsgTwo);
  offered.outlet("ibSecondButton_MsgTwo", ibSecondButton_MsgTwo);
  offered.outlet("ibThirdButton_MsgTwo", ibThirdButton_MsgTwo);
  offered.outlet("ibOkButton_MsgTwo", ibOkButton_MsgTwo);
  offered.action<Button>("clickFirstButton_MsgTwo:",
                         [this](Button& sender) { clickFirstButton_MsgTwo(sender); });
  offered.action<Button>("clickSecondButton_MsgTwo:",
                         [this](Button& sender) { clickSecondButton_MsgTwo(sender); });
  offered.action<Button>("clickThirdButton_MsgTwo:",
                         [this](Button& sender) { clickThirdButton_MsgTwo(sender); });
  offered.action<Button>("clickOkButton_MsgTwo:",
                         [this](Button& sender) { clickOkButton_MsgTwo(sender); });
}

void TavConflictController::offerMsgFive(InterfaceBindings& offered) {
  offered.outlet("ibMsgFiveWindow", ibMsgFiveWindow);
  offered.outlet("ibLabelA_MsgFive", ibLabelA_MsgFive);
  offered.outlet("ibLabelB_MsgFive", ibLabelB_MsgFive);
  offered.outlet("ibLabelC_MsgFive", ibLabelC_MsgFive);
  offered.outlet("ibLabelD_MsgFive", ibLabelD_MsgFive);
  offered.outlet("ibLabelA_FirstButton_MsgFive", ibLabelA_FirstButton_MsgFive);
  offered.outlet("ibLabelB_FirstButton_MsgFive", ibLabelB_FirstButton_MsgFive);
  offered.outlet("ibLabelA_SecondButton_MsgFive", ibLabelA_SecondButton_MsgFive);
  offered.outlet("ibFirstButton_MsgFive", ibFirstButton_MsgFive);
  offered.outlet("ibSecondButton_MsgFive", ibSecondButton_MsgFive);
  offered.outlet("ibOkButton_MsgFive", ibOkButton_MsgFive);
  offered.action<Button>("clickFirstButton_MsgFive:",
                         [this](Button& sender) { clickFirstButton_MsgFive(sender); });
  offered.action<Button>("clickSecondButton_MsgFive:",
                         [this](Button& sender) { clickSecondButton_MsgFive(sender); });
  offered.action<Button>("clickOkButton_MsgFive:",
                         [this](Button& sender) { clickOkButton_MsgFive(sender); });
}

}  // namespace tavrin
