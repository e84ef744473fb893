#include "conflict/TavConflictController.h"

// The choice buttons of the windows: what is selected goes with what they show.

namespace tavrin {

void TavConflictController::selectFirstMsgOne() {
  isFirstButton_MsgOneClicked = true;
  isSecondButton_MsgOneClicked = false;
  isThirdButton_MsgOneClicked = false;
}

void TavConflictController::selectFirstMsgTwo() {
  isFirstButton_MsgTwoClicked = true;
  isSecondButton_MsgTwoClicked = false;
  isThirdButton_MsgTwoClicked = false;
}

void TavConflictController::selectFirstMsgFive() {
  isFirstButton_MsgFiveClicked = true;
  isSecondButton_MsgFiveClicked = false;
}

void TavConflictController::clickFirstButton_MsgOne(Button& sender) {
  if (sender.intValue() != 1) return;
  selectFirstMsgOne();
  ibSecondButton_MsgOne->setState(0);
  ibThirdButton_MsgOne->setState(0);
}

void TavConflictController::clickSecondButton_MsgOne(Button& sender) {
  if (sender.intValue() != 1) return;
  isFirstButton_MsgOneClicked = false;
  isSecondButton_MsgOneClicked = true;
  isThirdButton_MsgOneClicked = false;
  ibFirstButton_MsgOne->setState(0);
  ibThirdButton_MsgOne->setState(0);
}

void TavConflictController::clickThirdButton_MsgOne(Button& sender) {
  if (sender.intValue() != 1) return;
  isFirstButton_MsgOneClicked = false;
  isSecondButton_MsgOneClicked = false;
  isThirdButton_MsgOneClicked = true;
  ibFirstButton_MsgOne->setState(0);
  ibSecondButton_MsgOne->setState(0);
}

void TavConflictController::clickFirstButton_MsgTwo(Button& sender) {
  if (sender.intValue() != 1) return;
  selectFirstMsgTwo();
  ibSecondButton_MsgTwo->setState(0);
  ibThirdButton_MsgTwo->setState(0);
}

void TavConflictController::clickSecondButton_MsgTwo(Button& sender) {
  if (sender.intValue() != 1) return;
  isFirstButton_MsgTwoClicked = false;
  isSecondButton_MsgTwoClicked = true;
  isThirdButton_MsgTwoClicked = false;
  ibFirstButton_MsgTwo->setState(0);
  ibThirdButton_MsgTwo->setState(0);
}

void TavConflictController::clickThirdButton_MsgTwo(Button& sender) {
  if (sender.intValue() != 1) return;
  isFirstButton_MsgTwoClicked = false;
  isSecondButton_MsgTwoClicked = false;
  isThirdButton_MsgTwoClicked = true;
  ibFirstButton_MsgTwo->setState(0);
  ibSecondButton_MsgTwo->setState(0);
}

void TavConflictController::clickFirstButton_MsgFive(Button& sender) {
  if (sender.intValue() != 1) return;
  selectFirstMsgFive();
  ibSecondButton_MsgFive->setState(0);
}

void TavConflictController::clickSecondButton_MsgFive(Button& sender) {
  if (sender.intValue() != 1) return;
  isFirstButton_MsgFiveClicked = false;
  isSecondButton_MsgFiveClicked = true;
  ibFirstButton_MsgFive->setState(0);
}

}  // namespace tavrin
