#include "host/printer/JobSettings.h"

#include <cups/cups.h>
#include <gtest/gtest.h>

#include "host/printer/MarkedOptions.h"
#include "ppd/PPDKeywords.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

TEST(JobSettings, AreWhatThePrintSystemHasForEveryJob) {
  for (const char* name : {"page-ranges", "Page-Ranges", "number-up", "number-up-layout", "copies",
                           "COPIES", "media", "media-col", "sides", "raw", "document-format",
                           "job-hold-until", "job-priority", "job-sheets", "notify-events",
                           "printer-resolution", "requested-attributes", "orientation-requested"})
    EXPECT_TRUE(isJobSetting(name)) << name;
}

TEST(JobSettings, SayHowAJobIsFinished) {
  for (const char* name : {"finishings", "finishings-col", "finishing-template"})
    EXPECT_TRUE(isJobSetting(name)) << name;
}

TEST(JobSettings, AreNotThePrintersOwnFeatures) {
  for (const char* keyword :
       {"Collate", "Resolution", "OutputBin", "OutputOrder", "InputSlot", "Brightness", "Gamma",
        "landscape", "fit-to-page", "page-left", "print-scaling", "print-quality", "MediaPosition",
        "Jobs", "hold", "N-up", ""})
    EXPECT_FALSE(isJobSetting(keyword)) << keyword;
  for (const char* keyword : {kPrintQualityKey, kPaperTypeKey, kPaperSourceKey, kColorModelKey,
                              kSharpeningKey, kMirrorKey, kDupDryTimeKey, kPageSizeKey})
    EXPECT_FALSE(isJobSetting(keyword)) << keyword;
  for (const char* keyword : kTwoSidedKeywords) EXPECT_FALSE(isJobSetting(keyword)) << keyword;
}

// libcups takes options by these names out of a job's own settings.
TEST(JobSettings, AreAllThatDoesNotBecomePartOfTheJob) {
  for (const char* name : {"job-password", "job-password-encryption", "notify-charset",
                           "notify-lease-duration", "notify-recipient-uri", "notify-user-data"}) {
    cups_option_t* option = nullptr;
    const int count = cupsAddOption(name, "1", 0, &option);
    ipp_t* request = ippNewRequest(IPP_OP_CREATE_JOB);
    cupsEncodeOptions2(request, count, option, IPP_TAG_OPERATION);
    cupsEncodeOptions2(request, count, option, IPP_TAG_SUBSCRIPTION);
    EXPECT_NE(ippFindAttribute(request, name, IPP_TAG_ZERO), nullptr) << name;
    EXPECT_TRUE(isJobSetting(name)) << name;
    ippDelete(request);
    cupsFreeOptions(count, option);
  }
}

TEST(JobSettings, InAPPDAreNamed) {
  const PPDPtr ppd = makePPD({mirrorOption(),
                              {"Number-Up", "PickOne", "4", {"1", "4"}},
                              {"raw", "Boolean", "True", {"True", "False"}}});
  EXPECT_EQ(optionsLeftAlone(*ppd), (std::vector<std::string>{"Number-Up", "raw"}));
}

TEST(JobSettings, GiveWayToWhatThePrinterHasItselfUnlessItIsLeftAlone) {
  const PPDPtr ppd = makePPD({{"Booklet", "PickOne", "None", {"None", "Left"}},
                              {"Number-Up", "PickOne", "4", {"1", "4"}}});
  EXPECT_TRUE(isPrintersOwn(*ppd, "booklet"));
  EXPECT_FALSE(isPrintersOwn(*ppd, "number-up"));
  EXPECT_FALSE(isPrintersOwn(*ppd, "position"));
}

}  // namespace
}  // namespace tavrin
