#pragma once

#include "ppd/PDEModel.h"

namespace tavrin {

// Who decides about the mirror image: the user who switched it by hand, a preset, or else the paper
// type, because iron-on paper is printed mirrored and other paper is not. Changes only the model,
// which is borrowed.
class MirrorRule {
 public:
  explicit MirrorRule(PDEModel& settings) : model(settings) {}

  // The user chose the model's paper type. True when the mirror was set for it.
  bool paperTypeChosen();

  // The model's paper type was changed from outside the panel.
  void updateMirrorValue();

  // The user switched the mirror.
  void switchedByHand(bool on);

  // The model's mirror differs from what the user saw: it is no longer the user's.
  void overruled() { isMirrorManuallySet = false; }

  // Takes the PPD's marked choice of the mirror, whose value is absent when none is marked.
  void takeMarked(const SettingChoice& marked);

 private:
  bool isIronOn() const { return model.paperTypeTicket() == kNSIronOn; }
  void set(bool on);

  PDEModel& model;
  // The user switched the mirror on by hand: paper types leave it alone.
  bool isMirrorManuallySet = false;
  // The mirror was on in the job's settings: a paper type does not switch it off.
  bool isMirrorSetDuringPreset = false;
};

}  // namespace tavrin
