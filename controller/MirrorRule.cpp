#include "controller/MirrorRule.h"

#include "ppd/PDETools.h"

namespace tavrin {

bool MirrorRule::paperTypeChosen() {
  if (isMirrorManuallySet) return false;
  if (!isIronOn() && isMirrorSetDuringPreset) return false;
  set(isIronOn());
  return true;
}

// A mirror that is neither on nor off, as that of a printer without one, stays as it is.
void MirrorRule::updateMirrorValue() {
  if (isMirrorManuallySet) return;
  const OptString& ticket = model.mirrorTicket();
  if (isIronOn()) {
    // Whatever the preset: one that left the mirror off did not know of the paper.
    if (ticket == kNSMirrorDefault) set(true);
  } else if (ticket == kNSTrue && !isMirrorSetDuringPreset) {
    set(false);
  }
}

void MirrorRule::switchedByHand(bool on) {
  isMirrorSetDuringPreset = false;
  isMirrorManuallySet = on;
  set(on);
}

void MirrorRule::takeMarked(const SettingChoice& marked) {
  if (!marked.value) {
    model.choose(Setting::mirror, PDETools().optionsChoice(kNSMirrorDefault, model.mirrorOption()));
    return;
  }
  model.choose(Setting::mirror, marked);
  isMirrorSetDuringPreset = marked.ticket == kNSTrue;
}

void MirrorRule::set(bool on) { model.choose(Setting::mirror, on ? kMirrorOn : kMirrorOff); }

}  // namespace tavrin
