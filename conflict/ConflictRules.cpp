#include "conflict/ConflictRules.h"

#include "conflict/ConflictFlags.h"

namespace tavrin {
namespace {

using Facts = ConflictFacts;

constexpr ConflictRule kRules[] = {
    {0, &Facts::ironOn, &Facts::draft, &kIronOnAtDraft, &IGNORE_IRONON_DRAFT_CONFLICT},
    {1, &Facts::ironOn, &Facts::banner, &kPaperSize},
    {2, &Facts::ironOn, &Facts::envelope, &kPaperSize},
    {3, &Facts::ironOn, &Facts::severalPages, &kPagesPerSheet,
     &IGNORE_IRONON_PAGESPERSHEET_CONFLICT},
    {4, &Facts::transparency, &Facts::banner, &kPaperSize},
    {5, &Facts::transparency, &Facts::envelope, &kPaperSize},
    {6, &Facts::transparency, &Facts::severalPages, &kPagesPerSheet,
     &IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT},
    {7, &Facts::glossy, &Facts::banner, &kPaperSize},
    {8, &Facts::glossy, &Facts::black, &kPrintInBlack},
    {9, &Facts::greetingCard, &Facts::banner, &kPaperSize},
    {10, &Facts::mirrored, &Facts::envelope, &kMirroredEnvelope, &IGNORE_MIRROR_ENVELOPE_CONFLICT},
    {11, &Facts::onlyColorCartridge, &Facts::black, &kCartridges},
    {12, &Facts::photoCartridge, &Facts::black, &kCartridges},
};

// A code is the place of its rule; it is known to replays, and never given to another rule.
consteval bool codesAreInOrder() {
  int place = 0;
  for (const ConflictRule& rule : kRules) {
    if (rule.code != place++) return false;
  }
  return true;
}
static_assert(codesAreInOrder());

}  // namespace

bool ConflictRule::clashesIn(const ConflictFacts& facts) const {
  const bool isInstructed = kind->isInstructed != nullptr && *kind->isInstructed;
  return facts.*one && facts.*other && !isInstructed && !(isIgnored != nullptr && *isIgnored);
}

std::vector<const ConflictRule*> brokenRules(const ConflictFacts& facts) {
  std::vector<const ConflictRule*> broken;
  for (const ConflictRule& rule : kRules) {
    if (rule.clashesIn(facts)) broken.push_back(&rule);
  }
  return broken;
}

}  // namespace tavrin
