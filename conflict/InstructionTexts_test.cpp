#include <algorithm>

#include "tests/fixtures/ConflictWindowsTest.h"
#include "tests/fixtures/TestStrings.h"

namespace tavrin {
namespace {

const std::string kUtilityStep = "2) Launch the Tavrin Utility";

class Instructions : public ConflictWindowsTest {
 protected:
  void SetUp() override {
    // Loads the windows without showing one that stays.
    panel.setPaper("Greeting");
    panel.format.name = "BannerBA4";
    process({choosing("MsgFive", 1)});
    panel.format.name = "A4";
  }

  // What the window says after one kind was composed.
  std::string text(int kind) { return text(panel, kind); }
  std::string text(ConflictTestPanel& on, int kind) {
    on.checker->composeInstructionMsg(static_cast<signed char>(kind));
    return toolkit.interface("Conflicts")->label("ibInstructionText").text;
  }
  const std::string& title() {
    return toolkit.interface("Conflicts")->window("ibInstructionWindow").title;
  }
};

TEST_F(Instructions, PageSetUp) {
  EXPECT_EQ(text(0),
            "1) If your application does not have File -> Page Setup, skip to step 7.\n"
            "2) Cancel the Print dialog.\n"
            "3) Select File -> Page Setup.\n"
            "4) From the Paper Size pop-up menu, select the desired paper size.\n"
            "5) Click OK.\n"
            "6) Open the Print dialog.\n"
            "7) From the Print dialog, select your desired settings.\n"
            "8) Click the close button in the upper left corner of this screen.");
  EXPECT_EQ(title(), "Instructions");
}

TEST_F(Instructions, ColourOptions) {
  EXPECT_EQ(text(1),
            "1) From the pop-up menu, choose Color options.\n"
            "2) From the Document Color pop-up menu, choose Color.\n"
            "3) Click the close button in the upper left corner of this screen.");
}

TEST_F(Instructions, Layout) {
  EXPECT_EQ(text(2),
            "1) From the pop-up menu, choose Layout.\n"
            "2) From the Pages per Sheet popup menu, choose 1.\n"
            "3) Click the close button in the upper left corner of this screen.");
}

TEST_F(Instructions, CartridgesDoNotNameTheModelInEnglish) {
  EXPECT_EQ(text(3),
            "1) Cancel the Print dialog.\n"
            "2) Launch the Tavrin Utility\n"
            "3) Select the Install/ Change Cartridge... button.\n"
            "4) Install a black cartridge.\n"
            "5) Open the Print dialog, and then reselect your settings.\n"
            "6) Click the close button in the upper left corner of this screen.");
}

TEST_F(Instructions, AnUnknownKindOnlySetsTheTitle) {
  const std::string before = text(2);
  for (const int kind : {7, 4, -1, 127, -128}) {
    toolkit.interface("Conflicts")->window("ibInstructionWindow").title.clear();
    EXPECT_EQ(text(kind), before);
    EXPECT_EQ(title(), "Instructions");
  }
}

TEST_F(Instructions, AMissingTranslationShowsTheEnglishStep) {
  const TestStrings strings(
      Translations{{"1) From the pop-up menu, choose Layout.", "1) Layout wählen."},
                   {"Instructions", "Anleitung"}});
  EXPECT_EQ(text(2),
            "1) Layout wählen.\n"
            "2) From the Pages per Sheet popup menu, choose 1.\n"
            "3) Click the close button in the upper left corner of this screen.");
  EXPECT_EQ(title(), "Anleitung");
}

TEST_F(Instructions, AnEmptyTranslationIsALineLikeAnyOther) {
  const TestStrings strings(Translations{{"1) From the pop-up menu, choose Layout.", ""},
                                         {"2) Cancel the Print dialog.", ""}});
  EXPECT_TRUE(text(2).starts_with("\n2) From the Pages per Sheet")) << text(2);
  EXPECT_NE(text(0).find("step 7.\n\n3) Select"), std::string::npos) << text(0);
}

TEST_F(Instructions, ATranslationMayNameTheModel) {
  const TestStrings strings(Translations{{kUtilityStep, "2) %@ öffnen, 100%% sicher: %1$@."}});
  EXPECT_NE(text(3).find("\n2) Tavrin P1 öffnen, 100% sicher: Tavrin P1.\n3) "), std::string::npos);
}

TEST_F(Instructions, APrinterWithoutModelNameShowsAsNothing) {
  const TestStrings strings(Translations{{kUtilityStep, "2) [%@]"}});
  ConflictTestPanel bare(nullptr);
  bare.model.setPaperTypeTicket("Greeting");
  bare.format.name = "BannerBA4";
  process(bare, {choosing("MsgFive", 1)});
  EXPECT_NE(text(bare, 3).find("\n2) []\n"), std::string::npos);
}

TEST_F(Instructions, OnlyTheSecondCartridgeStepIsAFormat) {
  const TestStrings strings(Translations{{"1) Cancel the Print dialog.", "1) %@ %%"},
                                         {"4) Install a black cartridge.", "4) %@ %%"},
                                         {"1) From the pop-up menu, choose Layout.", "1) %@ %%"}});
  EXPECT_TRUE(text(3).starts_with("1) %@ %%\n2) "));
  EXPECT_NE(text(3).find("\n4) %@ %%\n"), std::string::npos);
  EXPECT_TRUE(text(2).starts_with("1) %@ %%\n"));
}

TEST_F(Instructions, ATranslationCannotReadOrWriteWhatWasNotPassed) {
  for (const std::string hostile :
       {"%n", "%s", "%1$s", "%", "%d%d%d%d", "%2$@", "%*d", "%hhn", "%999999999d", "%1$", "% @",
        "%l@", "%.1@", "%S", "%C", "%p", "%08x.%08x", "%1", "%$@"}) {
    const TestStrings strings(Translations{{kUtilityStep, hostile}});
    EXPECT_NE(text(3).find("\n" + hostile + "\n3) "), std::string::npos) << hostile;
  }
}

TEST_F(Instructions, AStepOfMostOfAMegabyteIsShown) {
  const std::string step(1000 * 1000, 'x');
  const TestStrings strings(Translations{{kUtilityStep, step + "%n%@"}});
  EXPECT_NE(text(3).find(step + "%nTavrin P1\n3) "), std::string::npos);
}

}  // namespace
}  // namespace tavrin
