#include "conflict/ConflictFacts.h"

#include "conflict/InstalledCartridges.h"
#include "conflict/SelectedPaper.h"
#include "ppd/PDEModel.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

const std::string kNSCardstock = "Greeting";

}  // namespace

ConflictFacts ConflictFacts::of(const PDEModel& model, const PMPrintSettings* settings,
                                const PMPageFormat* format, ppd_file_t* ppd) {
  const OptString& paper = model.paperTypeTicket();
  const OptString size = SelectedPaper(format).todaysName();
  const auto cartridges = InstalledCartridges::read(ppd);
  return {.ironOn = paper == kNSIronOn,
          .transparency = paper == kNSTransparency,
          .glossy = isPhotoPaper(paper),
          .greetingCard = paper == kNSCardstock,
          .banner = isBanner(size),
          .envelope = isEnvelope(size),
          .severalPages = hasSeveralColumns(settings),
          .draft = model.printQualityTicket() == kNSDraft,
          .black = model.blackAndWhiteTicket() == kNSBlack,
          .mirrored = model.mirrorTicket() == kNSTrue,
          .onlyColorCartridge = cartridges.isColorOnly(),
          .photoCartridge = cartridges.isPhotoInstalled()};
}

bool isPhotoPaper(const OptString& paperType) {
  return paperType && paperType->find("Glossy") != std::string::npos;
}

bool hasSeveralColumns(const PMPrintSettings* settings) {
  return settings != nullptr && integerValue(settings->value(kPMLayoutColumns)) >= 2;
}

}  // namespace tavrin
