#include "host/printer/GivenPaper.h"

#include <gtest/gtest.h>

#include "host/printer/MarkedOptions.h"
#include "host/printer/PPDLoader.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

using Problems = std::vector<std::string>;

// Takes paper from 36 to 1000 points, too.
PPDPtr freePrinter() {
  return makePPD({pageSizeOption(), paperTypeOption(), paperSourceOption()},
                 customPaperAttributes());
}

// Its papers have dimensions, by which the print system knows them under other names.
PPDPtr samplePrinter() { return std::move(*loadPPD(SAMPLE_PRINTERS "/tavrin-r420.ppd")); }

// What is told when the printer's settings begin with these.
Problems told(ppd_file_t& ppd, const char* name, const char* value) {
  return markOptions(ppd, {{name, value}});
}

OptString marked(ppd_file_t& ppd) { return optionValue(markedOptions(ppd), "PageSize"); }

TEST(GivenPaper, OfAnOwnSizeIsWithinThePrintersLimits) {
  const PPDPtr ppd = freePrinter();
  for (const char* name : {"media", "PageSize"}) {
    for (const char* size : {"Custom.1x1mm", "Custom.99999x99999mm", "Custom.100x1001"}) {
      EXPECT_EQ(told(*ppd, name, size),
                Problems{"Paper of the size \"" + std::string(size) +
                         "\" is too small or too large for the printer. \"A4 Sheet\" is used "
                         "instead."});
      EXPECT_EQ(marked(*ppd), "A4") << name << "=" << size;
    }
    EXPECT_EQ(told(*ppd, name, "Custom.100x150mm"), Problems{});
    EXPECT_EQ(marked(*ppd), "Custom.100x150mm");
    EXPECT_EQ(told(*ppd, name, "Custom.1000x36"), Problems{}) << "the limits themselves";
  }
}

TEST(GivenPaper, OfAnOwnSizeHasASize) {
  const PPDPtr ppd = freePrinter();
  for (const char* size : {"Custom.0x0mm", "Custom.mm", "Custom.x", "Custom.100x", "Custom"}) {
    EXPECT_EQ(told(*ppd, "media", size),
              Problems{"There is no size of paper in \"" + std::string(size) +
                       "\". \"A4 Sheet\" is used instead."});
    EXPECT_EQ(marked(*ppd), "A4") << size;
  }
}

TEST(GivenPaper, OfAnOwnSizeIsNotForEveryPrinter) {
  const PPDPtr ppd = samplePrinter();
  EXPECT_EQ(told(*ppd, "media", "Custom.100x200mm"),
            Problems{"The printer takes no paper of another size than its own, such as "
                     "\"Custom.100x200mm\". \"US Letter\" is used instead."});
  EXPECT_EQ(marked(*ppd), "Letter");
}

TEST(GivenPaper, IsWhateverThePrintSystemFindsInThePPD) {
  const PPDPtr ppd = samplePrinter();
  for (const char* media : {"A4", "a4", "iso_a4_210x297mm", "iso-a4", "EnvelopeDL", "IronOn",
                            "A4,IronOn", "A4,Foo", "Foo,IronOn"})
    EXPECT_EQ(told(*ppd, "media", media), Problems{}) << media;
  told(*ppd, "media", "Foo,EnvelopeDL,IronOn");
  EXPECT_EQ(marked(*ppd), "EnvelopeDL");
  EXPECT_EQ(optionValue(markedOptions(*ppd), "MediaType"), "IronOn");
}

TEST(GivenPaper, IsMissedWhereThePrinterHasNothingOfIt) {
  const PPDPtr ppd = samplePrinter();
  for (const char* media : {"Foo", "", "iso_a0_841x1189mm", "Foo,Bar"})
    EXPECT_EQ(told(*ppd, "media", media),
              Problems{"The printer has no paper, and no source or type of paper, by the name \"" +
                       std::string(media) + "\". \"US Letter\" is used instead."});
  EXPECT_EQ(marked(*ppd), "Letter");
}

TEST(GivenPaper, InAListIsTakenAsFarAsItIsPossible) {
  const PPDPtr ppd = samplePrinter();
  EXPECT_EQ(told(*ppd, "media", "Custom.1x1mm,IronOn").size(), 1U);
  EXPECT_EQ(optionValue(markedOptions(*ppd), "MediaType"), "IronOn");
}

}  // namespace
}  // namespace tavrin
