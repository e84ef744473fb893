#include "conflict/TavConflictController.h"

#include "platform/toolkit/NotificationCenter.h"
#include "ppd/PDETools.h"
#include "ppd/PlugInBundle.h"

namespace tavrin {
namespace {

using Operation = void (TavConflictController::*)(Button&);

// What the buttons of the interface file "Conflicts" run.
const struct {
  const char* selector;
  Operation operation;
} kActions[] = {{"clickFirstButton_MsgOne:", &TavConflictController::clickFirstButton_MsgOne},
                {"clickSecondButton_MsgOne:", &TavConflictController::clickSecondButton_MsgOne},
                {"clickThirdButton_MsgOne:", &TavConflictController::clickThirdButton_MsgOne},
                {"clickOkButton_MsgOne:", &TavConflictController::clickOkButton_MsgOne},
                {"clickFirstButton_MsgTwo:", &TavConflictController::clickFirstButton_MsgTwo},
                {"clickSecondButton_MsgTwo:", &TavConflictController::clickSecondButton_MsgTwo},
                {"clickThirdButton_MsgTwo:", &TavConflictController::clickThirdButton_MsgTwo},
                {"clickOkButton_MsgTwo:", &TavConflictController::clickOkButton_MsgTwo},
                {"clickFirstButton_MsgFive:", &TavConflictController::clickFirstButton_MsgFive},
                {"clickSecondButton_MsgFive:", &TavConflictController::clickSecondButton_MsgFive},
                {"clickOkButton_MsgFive:", &TavConflictController::clickOkButton_MsgFive}};

}  // namespace

std::unique_ptr<TavConflictController> TavConflictController::initWithSettings(
    const PMPrintSettings* settings, const PMPageFormat* pageFormat, ppd_file_t* currentPPD,
    PDEModel* andPDEModel) {
  return std::unique_ptr<TavConflictController>(
      new TavConflictController(settings, pageFormat, currentPPD, andPDEModel));
}

TavConflictController::TavConflictController(const PMPrintSettings* settings,
                                             const PMPageFormat* pageFormat, ppd_file_t* ppd,
                                             PDEModel* pdeModel)
    : mPageFormat(pageFormat), mPrintSetting(settings), mLocalPPD(ppd), model(pdeModel) {}

TavConflictController::~TavConflictController() {
  NotificationCenter::defaultCenter().removeObserver(this);
  for (const auto& loaded : windows) loaded->detach();
}

// --- Detection ---

std::vector<int> TavConflictController::validateConflict() const {
  std::vector<int> codes;
  for (const ConflictRule* rule : conflictsNow()) codes.push_back(rule->code);
  return codes;
}

std::vector<const ConflictRule*> TavConflictController::conflictsNow() const {
  return brokenRules(ConflictFacts::of(*model, mPrintSetting, mPageFormat, mLocalPPD));
}

// --- The loop ---

void TavConflictController::processConflict() {
  loadMissingWindows();
  for (ConflictWindow* window : {&msgOne, &msgTwo, &msgFive}) window->selectFirst();
  for (const ConflictKind* kind : kConflictKinds) {
    if (kind->isInstructed != nullptr) *kind->isInstructed = false;
  }

  const auto keptWhileShown = windows;
  canShowWindows = true;
  for (auto conflicts = conflictsNow(); !conflicts.empty(); conflicts = conflictsNow()) {
    if (!show(*conflicts.front()->kind)) return;
  }
}

void TavConflictController::loadMissingWindows() {
  if (msgOne.window.isConnected() && msgTwo.window.isConnected() && msgFive.window.isConnected() &&
      ibInstructionWindow.isConnected()) {
    return;
  }
  auto loaded = Toolkit::current().loadInterface(plugInBundle(), "Conflicts", bindings());
  if (loaded) windows.push_back(std::move(loaded));
}

InterfaceBindings TavConflictController::bindings() {
  InterfaceBindings offered;
  for (ConflictWindow* window : {&msgOne, &msgTwo, &msgFive}) window->offerOutlets(offered);
  offered.outlet("ibInstructionWindow", ibInstructionWindow);
  offered.outlet("ibInstructionText", ibInstructionText);
  for (const auto& action : kActions) {
    const Operation run = action.operation;
    offered.action<Button>(action.selector, [this, run](Button& sender) { (this->*run)(sender); });
  }
  offered.windowWillClose = [this] { windowWillClose(); };
  return offered;
}

ConflictWindow& TavConflictController::windowOf(MessageWindow window) {
  if (window == MessageWindow::msgOne) return msgOne;
  return window == MessageWindow::msgTwo ? msgTwo : msgFive;
}

bool TavConflictController::show(const ConflictKind& kind) {
  ConflictWindow& dialog = windowOf(kind.window);
  if (!dialog.window.isConnected()) return false;
  if (kind.isShown != nullptr) *kind.isShown = true;
  compose(kind);
  return runWindow(*dialog.window);
}

bool TavConflictController::runWindow(Window& window) {
  const std::weak_ptr<const bool> alive = life;
  window.center();
  window.display();
  const bool stopped = Toolkit::current().runModalForWindow(window);
  if (alive.expired()) return false;
  canShowWindows = canShowWindows && stopped;
  return canShowWindows;
}

void TavConflictController::windowWillClose() {
  Toolkit::current().stopModal();
  msgTwo.window->close();
}

// --- What the windows show ---

void TavConflictController::compose(const ConflictKind& kind) {
  if (kind.window == MessageWindow::msgOne) composeMsgOne();
  if (kind.window == MessageWindow::msgTwo) composeMsgTwo(kind.numberInWindow);
  if (kind.window == MessageWindow::msgFive) composeMsgFive(kind.numberInWindow);
}

void TavConflictController::composeInstructionMsg(signed char kind) {
  const OptString text = instructionText(kind, PDETools().getModelName(mLocalPPD));
  if (text) ibInstructionText->setStringValue(*text);
  ibInstructionWindow->setTitle(localized("Instructions"));
}

// --- What the choices do ---

void TavConflictController::answer(MessageWindow answered) {
  ConflictWindow& dialog = windowOf(answered);
  Toolkit::current().stopModal();
  dialog.window->close();
  const std::optional<Choice> choice = dialog.takeSelected();
  for (const ConflictKind* kind : kConflictKinds) {
    if (choice && kind->takeShown(answered)) takeWayOut(*kind, *choice);
  }
  // MsgOne has no steps and tells of every choice, also of going on.
  if (choice == firstChoice || answered == MessageWindow::msgOne) {
    NotificationCenter::defaultCenter().post(ConflictControllerChangeNotification,
                                             &*dialog.okButton);
  } else if (choice == secondChoice && ibInstructionWindow.isConnected()) {
    runWindow(*ibInstructionWindow);
  }
}

void TavConflictController::takeWayOut(const ConflictKind& kind, Choice choice) {
  if (const auto wayOut = kind.waysOut[choice]) {
    wayOut(*model);
  } else {
    composeInstructionMsg(kind.steps);
    *kind.isInstructed = true;
  }
}

}  // namespace tavrin
