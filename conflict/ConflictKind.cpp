#include "conflict/ConflictKind.h"

#include <string>
#include <utility>

#include "conflict/ConflictFlags.h"
#include "ppd/PDEModel.h"
#include "ppd/PDETools.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

// A choice that the printer lacks has a keyword and no text.
void take(PDEModel& model, Setting setting, const std::string& keyword) {
  model.choose(
      setting,
      {PDETools().getOptionsChoice(keyword, model.option(setting), ChoicePart::text), keyword});
}

void takeNormalIronOn(PDEModel& model) {
  take(model, Setting::printQuality, "Normal");
  take(model, Setting::paperType, kNSIronOn);
}

void takeDraftOnPlainPaper(PDEModel& model) {
  take(model, Setting::printQuality, kNSDraft);
  take(model, Setting::paperType, "Plain");
}

void takePlainPaper(PDEModel& model) { take(model, Setting::paperType, "Plain"); }

void takeColor(PDEModel& model) { take(model, Setting::blackAndWhite, kNSColorModelDefault); }

void switchMirrorOff(PDEModel& model) { model.choose(Setting::mirror, kMirrorOff); }

void ignoreDraft(PDEModel&) { IGNORE_IRONON_DRAFT_CONFLICT = true; }

void ignoreMirror(PDEModel&) { IGNORE_MIRROR_ENVELOPE_CONFLICT = true; }

// Only on the paper that is chosen now: on the other one the user is asked again.
void ignoreLayout(PDEModel& model) {
  if (model.paperTypeTicket() == kNSIronOn) IGNORE_IRONON_PAGESPERSHEET_CONFLICT = true;
  if (model.paperTypeTicket() == kNSTransparency) IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT = true;
}

}  // namespace

constinit const ConflictKind kIronOnAtDraft = {
    .window = MessageWindow::msgOne,
    .numberInWindow = 0,
    .isShown = nullptr,
    .isInstructed = nullptr,
    .steps = {},
    .waysOut = {takeNormalIronOn, takeDraftOnPlainPaper, ignoreDraft}};

// Another paper leads out of it, so its steps are those of the page set-up.
constinit const ConflictKind kMirroredEnvelope = {
    .window = MessageWindow::msgTwo,
    .numberInWindow = 0,
    .isShown = &HAS_MIRROR_CONFLICT,
    .isInstructed = &HAS_MIRROR_INSTRUCTION,
    .steps = pageSetUpSteps,
    .waysOut = {switchMirrorOff, nullptr, ignoreMirror}};

constinit const ConflictKind kPagesPerSheet = {.window = MessageWindow::msgTwo,
                                               .numberInWindow = 1,
                                               .isShown = &HAS_PAGESPERSHEET_CONFLICT,
                                               .isInstructed = &HAS_PAGESPERSHEET_INSTRUCTION,
                                               .steps = layoutSteps,
                                               .waysOut = {takePlainPaper, nullptr, ignoreLayout}};

constinit const ConflictKind kPrintInBlack = {.window = MessageWindow::msgFive,
                                              .numberInWindow = 1,
                                              .isShown = &HAS_PRINTINBLACK_CONFLICT,
                                              .isInstructed = &HAS_PRINTINBLACK_INSTRUCTION,
                                              .steps = colorSteps,
                                              .waysOut = {takeColor, nullptr, nullptr}};

constinit const ConflictKind kCartridges = {.window = MessageWindow::msgFive,
                                            .numberInWindow = 2,
                                            .isShown = &HAS_CARTINSTALLED_CONFLICT,
                                            .isInstructed = &HAS_CARTINSTALLED_INSTRUCTION,
                                            .steps = cartridgeSteps,
                                            .waysOut = {takeColor, nullptr, nullptr}};

constinit const ConflictKind kPaperSize = {.window = MessageWindow::msgFive,
                                           .numberInWindow = 0,
                                           .isShown = &HAS_PAPERSIZE_CONFLICT,
                                           .isInstructed = &HAS_PAPERSIZE_INSTRUCTION,
                                           .steps = pageSetUpSteps,
                                           .waysOut = {takePlainPaper, nullptr, nullptr}};

const ConflictKind* const kConflictKinds[6] = {&kIronOnAtDraft, &kMirroredEnvelope, &kPagesPerSheet,
                                               &kPrintInBlack,  &kCartridges,       &kPaperSize};

bool ConflictKind::takeShown(MessageWindow answered) const {
  if (answered != window) return false;
  return isShown == nullptr || std::exchange(*isShown, false);
}

}  // namespace tavrin
