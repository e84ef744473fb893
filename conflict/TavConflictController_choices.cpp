#include <initializer_list>

#include "conflict/TavConflictController.h"

// The choice buttons of the windows: what is selected goes with what they show.

namespace tavrin {
namespace {

struct Choice {
  bool& isSelected;
  Outlet<Button>& button;
};

// Follows a choice button that was clicked; one that is off now changes nothing.
void select(const Button& sender, bool& isSelected, std::initializer_list<Choice> others) {
  if (sender.intValue() != 1) return;
  isSelected = true;
  for (const Choice& other : others) {
    other.isSelected = false;
    other.button->setState(0);
  }
}

}  // namespace

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
  select(sender, isFirstButton_MsgOneClicked,
         {{isSecondButton_MsgOneClicked, ibSecondButton_MsgOne},
          {isThirdButton_MsgOneClicked, ibThirdButton_MsgOne}});
}

void TavConflictController::clickSecondButton_MsgOne(Button& sender) {
  select(sender, isSecondButton_MsgOneClicked,
         {{isFirstButton_MsgOneClicked, ibFirstButton_MsgOne},
          {isThirdButton_MsgOneClicked, ibThirdButton_MsgOne}});
}

void TavConflictController::clickThirdButton_MsgOne(Button& sender) {
  select(sender, isThirdButton_MsgOneClicked,
         {{isFirstButton_MsgOneClicked, ibFirstButton_MsgOne},
          {isSecondButton_MsgOneClicked, ibSecondButton_MsgOne}});
}

void TavConflictController::clickFirstButton_MsgTwo(Button& sender) {
  select(sender, isFirstButton_MsgTwoClicked,
         {{isSecondButton_MsgTwoClicked, ibSecondButton_MsgTwo},
          {isThirdButton_MsgTwoClicked, ibThirdButton_MsgTwo}});
}

void TavConflictController::clickSecondButton_MsgTwo(Button& sender) {
  select(sender, isSecondButton_MsgTwoClicked,
         {{isFirstButton_MsgTwoClicked, ibFirstButton_MsgTwo},
          {isThirdButton_MsgTwoClicked, ibThirdButton_MsgTwo}});
}

void TavConflictController::clickThirdButton_MsgTwo(Button& sender) {
  select(sender, isThirdButton_MsgTwoClicked,
         {{isFirstButton_MsgTwoClicked, ibFirstButton_MsgTwo},
          {isSecondButton_MsgTwoClicked, ibSecondButton_MsgTwo}});
}

void TavConflictController::clickFirstButton_MsgFive(Button& sender) {
  select(sender, isFirstButton_MsgFiveClicked,
         {{isSecondButton_MsgFiveClicked, ibSecondButton_MsgFive}});
}

void TavConflictController::clickSecondButton_MsgFive(Button& sender) {
  select(sender, isSecondButton_MsgFiveClicked,
         {{isFirstButton_MsgFiveClicked, ibFirstButton_MsgFive}});
}

}  // namespace tavrin
