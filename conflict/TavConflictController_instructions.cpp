#include "conflict/InstructionTexts.h"
#include "conflict/TavConflictController.h"
#include "ppd/PDETools.h"
#include "ppd/PlugInBundle.h"

namespace tavrin {

void TavConflictController::composeInstructionMsg(signed char kind) {
  const OptString text = instructionText(kind, PDETools().getModelName(mLocalPPD));
  if (text) ibInstructionText->setStringValue(*text);
  ibInstructionWindow->setTitle(localized("Instructions"));
}

}  // namespace tavrin
