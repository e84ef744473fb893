#include <dirent.h>

#include "controller/TavPDEController.h"
#include "platform/files/Bundle.h"
#include "platform/files/RootFolder.h"
#include "platform/toolkit/HelpViewer.h"
#include "ppd/PPDKeywords.h"
#include "ppd/PlugInBundle.h"

namespace tavrin {
namespace {

const std::string kDriversFolder = "Drivers";
constexpr int kLastYearWithHelpPath = 2006;
const std::string kHelpPage = "PrintDialog.html";

bool isDirectory(const std::filesystem::path& path) {
  const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(path.c_str()), &closedir);
  return directory != nullptr;
}

// One model's help book carries a shorter name.
std::string helpBookOfModel(const OptString& modelName) {
  const std::string book = modelName.value_or("");
  return (book == "Tavrin R420 Series" ? "Tavrin 420 Series" : book) + " Help";
}

std::string helpBookOfDriver(const OptString& path) {
  if (!path) return {};
  return Bundle::atPath(pathBelowRoot(*path)).info("CFBundleHelpBookName").value_or("");
}

}  // namespace

std::map<std::string, OptString> TavPDEController::infoForSummaryPanel() const {
  const PDEModel& model = *mPDEModel;
  std::map<std::string, OptString> lines;
  const auto add = [&lines](const ppd_option_t* option, const OptString& value) {
    if (option == nullptr) return;
    if (const OptString label = decodeUTF8(option->text)) lines[*label] = value;
  };

  add(model.printQualityOption(), model.printQuality());
  if (model.blackAndWhiteOption() != nullptr) {
    lines[localized(kNSPrintBlackAndWhiteLabel)] = model.blackAndWhite();
  }
  add(model.paperTypeOption(), model.paperType());
  add(model.paperSourceOption(), model.paperSource());
  // The mirror's own value may be the panel's "On" or "Off", which is no text of the printer.
  add(model.mirrorOption(),
      pdeTools->getOptionsChoice(model.mirrorTicket(), model.mirrorOption(), false));
  add(model.imageSharpeningOption(), model.imageSharpening());
  add(model.dryTimePopUpOption(), model.dryTime());
  add(model.dryTimeCheckBoxOption(), model.dryTime());
  return lines;
}

bool TavPDEController::shouldShowDefaultHelp() const {
  const OptString year = pdeTools->getModelYear(mLOcPPD);
  const bool ownHelpPath = year != kDriversFolder && integerValue(year) <= kLastYearWithHelpPath;
  const OptString path =
      pdeTools->getComponentPath(ownHelpPath ? HELP_KEY : CUPS_DRIVER_KEY, mLOcPPD, mLocEncoding);
  const std::string book =
      ownHelpPath ? helpBookOfModel(pdeTools->getModelName(mLOcPPD)) : helpBookOfDriver(path);
  if (!path || !isDirectory(pathBelowRoot(*path))) return true;
  HelpViewer::current().gotoPage(book, ownHelpPath ? OptString(kHelpPage) : std::nullopt,
                                 std::nullopt);
  return false;
}

}  // namespace tavrin
