#pragma once

#include <string>
#include <vector>

#include "ppd/CupsHandles.h"

// PPDs for tests, written as briefly as a test can read them.

namespace tavrin {

// One choice: "IronOn/Iron-On Transfer"; the text may be left out.
struct PPDOptionText {
  std::string keyword;  // "MediaType/Paper Type"
  std::string kind;     // "PickOne", "Boolean", "PickMany"
  std::string defaultChoice;
  std::vector<std::string> choices;
};

// The text of a PPD: a header that libcups accepts, the attributes (whole lines) and the options.
std::string ppdText(const std::vector<PPDOptionText>& options,
                    const std::vector<std::string>& attributes = {});

// The PPD of such a text, with its defaults marked; stops the test if libcups refuses it.
PPDPtr parsePPD(const std::string& text, bool markDefaults = true);
PPDPtr makePPD(const std::vector<PPDOptionText>& options,
               const std::vector<std::string>& attributes = {});

// Takes every mark of an option away.
void unmark(ppd_file_t& ppd, const std::string& option);

// The family's options, one function each.
PPDOptionText printQualityOption();
PPDOptionText paperTypeOption();
PPDOptionText paperSourceOption();
PPDOptionText colorModelOption();
PPDOptionText mirrorOption();
PPDOptionText sharpeningOption(const std::string& defaultChoice = "Automatic");
PPDOptionText dryTimePopUpOption();
PPDOptionText dryTimeCheckBoxOption(const std::string& defaultChoice = "False");
PPDOptionText tray2Option(const std::string& installed);
PPDOptionText pageSizeOption();

// A printer with all of them, the pop-up kind of dry time and the second tray.
std::vector<PPDOptionText> fullPrinter();

// The attributes of a printer that takes paper of any size, from 36 to 1000 points.
std::vector<std::string> customPaperAttributes();

// A printer with options that no panel shows: it staples wherever one picks, and prints on both
// sides.
PPDPtr officePPD();

}  // namespace tavrin
