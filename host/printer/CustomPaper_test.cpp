#include "host/printer/CustomPaper.h"

#include <gtest/gtest.h>

#include "host/printer/MarkedOptions.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

constexpr double kMillimetre = 72 / 25.4;

TEST(CustomPaper, IsAChoiceInTheUnitThatSaysIt) {
  EXPECT_EQ(customPaperChoice({100 * kMillimetre, 150 * kMillimetre}), "Custom.100x150mm");
  EXPECT_EQ(customPaperChoice({288, 432}), "Custom.101.6x152.4mm");
  EXPECT_EQ(customPaperChoice({3.37 * 72, 5.11 * 72}), "Custom.3.37x5.11in");
  EXPECT_EQ(customPaperChoice({100, 200}), "Custom.100x200");
}

TEST(CustomPaper, IsReadInEveryUnit) {
  for (const char* choice : {"Custom.100x150mm", "custom.10x15cm", "Custom.0.1x0.15M"}) {
    const auto size = customPaperSize(choice);
    ASSERT_TRUE(size) << choice;
    EXPECT_NEAR(size->width, 100 * kMillimetre, 0.01) << choice;
    EXPECT_NEAR(size->height, 150 * kMillimetre, 0.01) << choice;
  }
  EXPECT_EQ(customPaperSize("Custom.4x6in"), (PaperSize{288, 432}));
  EXPECT_EQ(customPaperSize("Custom.100x200"), (PaperSize{100, 200}));
  for (const char* choice :
       {"A4", "Custom", "Custom.", "Custom.10", "Custom.10x", "Custom.ax5", "Custom.10x15miles",
        "Custom.-1x5", "Custom.nanx5", "Custom.infx5", "Custom.0x5"})
    EXPECT_FALSE(customPaperSize(choice)) << choice;
}

TEST(CustomPaper, IsTheOneThatIsMarked) {
  const PPDPtr ppd = makePPD({pageSizeOption()}, customPaperAttributes());
  ASSERT_TRUE(takesCustomPaper(*ppd));
  EXPECT_EQ(leastPaper(*ppd), (PaperSize{36, 36}));
  EXPECT_EQ(mostPaper(*ppd), (PaperSize{1000, 1000}));
  EXPECT_EQ(markedCustomPaper(*ppd), std::nullopt);
  markOptions(*ppd, {{"PageSize", "Custom.10x15cm"}});
  EXPECT_EQ(markedCustomPaper(*ppd), "Custom.100x150mm");
  EXPECT_NEAR(markedPaperSize(*ppd).width, 283.46, 0.01);
}

TEST(CustomPaper, IsNotForEveryPrinter) {
  const PPDPtr ppd = makePPD({pageSizeOption()});
  EXPECT_FALSE(takesCustomPaper(*ppd));
  EXPECT_EQ(markedCustomPaper(*ppd), std::nullopt);
}

}  // namespace
}  // namespace tavrin
