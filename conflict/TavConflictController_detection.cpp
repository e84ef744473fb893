#include <memory>

#include "conflict/ConflictFlags.h"
#include "conflict/InstalledCartridges.h"
#include "conflict/SelectedPaper.h"
#include "conflict/TavConflictController.h"
#include "platform/toolkit/NotificationCenter.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

const std::string kNSCardstock = "Greeting";

bool contains(const OptString& text, const char* part) {
  return text && text->find(part) != std::string::npos;
}

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

std::vector<int> TavConflictController::validateConflict() const {
  const OptString size = selectedPaperSize();
  const bool pps = hasPagesPerSheet();
  const OptString& paper = model->paperTypeTicket();
  const bool photo = isMediaTypePhoto(paper);
  const bool banner = isPaperSizeBanner(size);
  const bool envelope = isPaperSizeEnvelope(size);
  const auto cartridges = InstalledCartridges::read(mLocalPPD);
  const bool colorOnly = cartridges.isColorOnly();
  const bool photoCart = cartridges.isPhotoInstalled();

  const bool ironOn = paper == kNSIronOn;
  const bool transparency = paper == kNSTransparency;
  const bool draft = model->printQualityTicket() == "Draft";
  const bool black = model->blackAndWhiteTicket() == kNSBlack;
  const bool mirror = model->mirrorTicket() == "True";

  const struct {
    int code;
    bool present;
    bool silenced;
  } rules[] = {
      {0, ironOn && draft, IGNORE_IRONON_DRAFT_CONFLICT},
      {1, ironOn && banner, HAS_PAPERSIZE_INSTRUCTION},
      {2, ironOn && envelope, HAS_PAPERSIZE_INSTRUCTION},
      {3, ironOn && pps, HAS_PAGESPERSHEET_INSTRUCTION || IGNORE_IRONON_PAGESPERSHEET_CONFLICT},
      {4, transparency && banner, HAS_PAPERSIZE_INSTRUCTION},
      {5, transparency && envelope, HAS_PAPERSIZE_INSTRUCTION},
      {6, transparency && pps,
       HAS_PAGESPERSHEET_INSTRUCTION || IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT},
      {7, photo && banner, HAS_PAPERSIZE_INSTRUCTION},
      {8, photo && black, HAS_PRINTINBLACK_INSTRUCTION},
      {9, paper == kNSCardstock && banner, HAS_PAPERSIZE_INSTRUCTION},
      {10, mirror && envelope, HAS_MIRROR_INSTRUCTION || IGNORE_MIRROR_ENVELOPE_CONFLICT},
      {11, colorOnly && black, HAS_CARTINSTALLED_INSTRUCTION},
      {12, photoCart && black, HAS_CARTINSTALLED_INSTRUCTION},
  };

  std::vector<int> codes;
  for (const auto& rule : rules) {
    if (rule.present && !rule.silenced) codes.push_back(rule.code);
  }
  return codes;
}

OptString TavConflictController::selectedPaperSize() const {
  return SelectedPaper(mPageFormat).todaysName();
}

bool TavConflictController::hasPagesPerSheet() const {
  if (mPrintSetting == nullptr) return false;
  return integerValue(mPrintSetting->value(kPMLayoutColumns)) >= 2;
}

bool TavConflictController::isMediaTypePhoto(const OptString& paperType) const {
  return contains(paperType, "Glossy");
}

bool TavConflictController::isPaperSizeEnvelope(const OptString& paperSize) const {
  return contains(paperSize, "Envelope");
}

bool TavConflictController::isPaperSizeBanner(const OptString& paperSize) const {
  return contains(paperSize, "BA");
}

bool TavConflictController::isPhotoCartInstalled() const {
  return InstalledCartridges::read(mLocalPPD).isPhotoInstalled();
}

bool TavConflictController::isColorCartOnly() const {
  return InstalledCartridges::read(mLocalPPD).isColorOnly();
}

}  // namespace tavrin
