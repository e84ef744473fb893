#include "controller/PrinterHelp.h"

#include <system_error>

#include "platform/files/Bundle.h"
#include "platform/files/RootFolder.h"
#include "platform/toolkit/HelpViewer.h"
#include "ppd/PDETools.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

const std::string kDriversFolder = "Drivers";
constexpr int kFirstYearWithDriverBundle = 2007;
const std::string kHelpPage = "PrintDialog.html";

// A model without a year, or with something else in its place, is an older one.
bool isOlder(const OptString& modelYear) {
  return modelYear != kDriversFolder && integerValue(modelYear) < kFirstYearWithDriverBundle;
}

// Whether there is a folder that can be read.
bool opensAsFolder(const fs::path& place) {
  std::error_code failure;
  const fs::directory_iterator folder(place, failure);
  return !failure;
}

// One model's help book carries a shorter name.
std::string bookOfModel(const std::string& modelName) {
  return (modelName == "Tavrin R420 Series" ? "Tavrin 420 Series" : modelName) + " Help";
}

}  // namespace

PrinterHelp::PrinterHelp(ppd_file_t* ppd, StringEncoding encoding)
    : isOlderModel(isOlder(PDETools().getModelYear(ppd))),
      modelName(PDETools().getModelName(ppd)),
      path(PDETools().getComponentPath(isOlderModel ? HELP_KEY : CUPS_DRIVER_KEY, ppd, encoding)),
      place(path ? pathBelowRoot(*path) : fs::path()) {}

void PrinterHelp::registerBook() const {
  std::error_code failure;
  if (fs::exists(place, failure)) HelpViewer::current().registerHelpBook(*path);
}

bool PrinterHelp::open() const {
  if (!opensAsFolder(place)) return false;
  HelpViewer::current().gotoPage(book(), isOlderModel ? OptString(kHelpPage) : std::nullopt,
                                 std::nullopt);
  return true;
}

// Empty for a driver that does not name its book.
std::string PrinterHelp::book() const {
  if (isOlderModel) return bookOfModel(modelName.value_or(""));
  return Bundle::atPath(place).info("CFBundleHelpBookName").value_or("");
}

}  // namespace tavrin
