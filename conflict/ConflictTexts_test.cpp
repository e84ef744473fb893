#include "tests/fixtures/ConflictWindowsTest.h"
#include "tests/fixtures/TestStrings.h"

// What each conflict's window says.

namespace tavrin {
namespace {

class ConflictTextsTest : public ConflictWindowsTest {
 protected:
  void expectConflict(const SeenWindow& window, const std::string& dialog, const std::string& a,
                      const std::string& c);
  void expectFirstChoice(const SeenWindow& window, const std::string& dialog, const std::string& a,
                         const std::string& b);
};

void ConflictTextsTest::expectConflict(const SeenWindow& window, const std::string& dialog,
                                       const std::string& a, const std::string& c) {
  EXPECT_EQ(window.window, "ib" + dialog + "Window");
  EXPECT_EQ(window.title, "Conflicting settings");
  EXPECT_EQ(window.label("ibLabelA_" + dialog), a);
  EXPECT_EQ(window.label("ibLabelB_" + dialog), "is not compatible with");
  EXPECT_EQ(window.label("ibLabelC_" + dialog), c);
  EXPECT_EQ(window.label("ibLabelD_" + dialog), "Choose an option to resolve the conflict:");
}

void ConflictTextsTest::expectFirstChoice(const SeenWindow& window, const std::string& dialog,
                                          const std::string& a, const std::string& b) {
  EXPECT_EQ(window.states.at("ibFirstButton_" + dialog), 1);
  EXPECT_EQ(window.states.at("ibSecondButton_" + dialog), 0);
  EXPECT_EQ(window.label("ibLabelA_FirstButton_" + dialog), a);
  EXPECT_EQ(window.label("ibLabelB_FirstButton_" + dialog), b);
}

TEST_F(ConflictTextsTest, IronOnAtDraftQuality) {
  bringAbout(0);
  process({choosing("MsgOne", 1)});
  const SeenWindow& window = seen.at(0);
  expectConflict(window, "MsgOne", "Paper Type: Iron-On Transfer", "Print Quality: Quick Print");
  expectFirstChoice(window, "MsgOne", "Paper Type: Iron-On Transfer", "Print Quality: Normal");
  EXPECT_EQ(window.label("ibLabelA_SecondButton_MsgOne"), "Paper Type: Plain");
  EXPECT_EQ(window.label("ibLabelB_SecondButton_MsgOne"), "Print Quality: Quick Print");
  EXPECT_EQ(window.label("ibLabelA_ThirdButton_MsgOne"),
            "Continue without resolving the conflict.");
  EXPECT_EQ(window.states.at("ibThirdButton_MsgOne"), 0);
}

TEST_F(ConflictTextsTest, SpecialPaperOnASizeThatItDoesNotCome) {
  const struct {
    int code;
    const char* paperLine;
    const char* sizeLine;
  } examples[] = {
      {1, "Paper Type: Iron-On Transfer", "Paper Size: Banner"},
      {2, "Paper Type: Iron-On Transfer", "Paper Size: DL Envelope"},
      {4, "Paper Type: Transparency Film", "Paper Size: Banner"},
      {5, "Paper Type: Transparency Film", "Paper Size: DL Envelope"},
      {7, "Paper Type: Glossy Photo", "Paper Size: Banner"},
      {9, "Paper Type: Greeting Card", "Paper Size: Banner"},
  };
  for (const auto& example : examples) {
    SCOPED_TRACE(example.code);
    bringAbout(example.code);
    process({choosing("MsgFive", 0)});
    expectConflict(seen.at(0), "MsgFive", example.paperLine, example.sizeLine);
    expectFirstChoice(seen.at(0), "MsgFive", "Paper Type: Plain", example.sizeLine);
    EXPECT_EQ(seen.at(0).label("ibLabelA_SecondButton_MsgFive"),
              "Show instructions to resolve the conflict settings.");
  }
}

TEST_F(ConflictTextsTest, SeveralPagesOnASheetOfSpecialPaper) {
  const std::pair<int, const char*> examples[] = {{3, "Paper Type: Iron-On Transfer"},
                                                  {6, "Paper Type: Transparency Film"}};
  for (const auto& [code, paperLine] : examples) {
    bringAbout(code);
    process({choosing("MsgTwo", 0)});
    const SeenWindow& window = seen.at(0);
    expectConflict(window, "MsgTwo", "Layout: Pages per Sheet (>1)", paperLine);
    expectFirstChoice(window, "MsgTwo", "Layout: Pages per Sheet (>1)", "Paper Type: Plain");
    EXPECT_EQ(window.label("ibLabelA_SecondButton_MsgTwo"),
              "Show instructions to resolve the conflict settings.");
    EXPECT_EQ(window.label("ibLabelA_ThirdButton_MsgTwo"),
              "Continue without resolving the conflict.");
  }
}

TEST_F(ConflictTextsTest, MirrorOnAnEnvelope) {
  bringAbout(10);
  process({choosing("MsgTwo", 0)});
  expectConflict(seen.at(0), "MsgTwo", "Advanced Options: Mirror (ON)", "Paper Size: DL Envelope");
  expectFirstChoice(seen.at(0), "MsgTwo", "Advanced Options: Mirror (OFF)",
                    "Paper Size: DL Envelope");
  EXPECT_EQ(seen.at(0).states.at("ibThirdButton_MsgTwo"), 0);
}

TEST_F(ConflictTextsTest, BlackOnlyPrintingOnPhotoPaper) {
  bringAbout(8);
  process({choosing("MsgFive", 0)});
  expectConflict(seen.at(0), "MsgFive", "Paper Type: Glossy Photo", "Document Color: Black Only");
  expectFirstChoice(seen.at(0), "MsgFive", "Paper Type: Glossy Photo", "Document Color: Color");
}

TEST_F(ConflictTextsTest, BlackOnlyPrintingWithTheWrongCartridges) {
  const std::pair<int, const char*> examples[] = {{11, "Cartridge(s) installed: Only Color"},
                                                  {12, "Cartridge(s) installed: Photo"}};
  for (const auto& [code, line] : examples) {
    bringAbout(code);
    process({choosing("MsgFive", 0)});
    expectConflict(seen.at(0), "MsgFive", line, "Document Color: Black Only");
    expectFirstChoice(seen.at(0), "MsgFive", line, "Document Color: Color");
  }
}

TEST_F(ConflictTextsTest, ASizeThatThePrinterDoesNotListGoesByTodaysName) {
  panel.setMirror("True");
  panel.format.name = "EnvChou3";
  process({choosing("MsgTwo", 0)});
  EXPECT_EQ(seen.at(0).label("ibLabelC_MsgTwo"), "Paper Size: EnvelopeChokei3");
}

TEST_F(ConflictTextsTest, ASizeThatThePrinterListsUnderItsOldNameGoesByThatText) {
  auto options = fullPrinter();
  options[0].choices.emplace_back("EnvChou3/Japanese Long Envelope");
  const PPDPtr older = makePPD(options);
  ConflictTestPanel on(older.get());
  on.setPaper("IronOn");
  on.format.name = "EnvChou3";
  process(on, {choosing("MsgFive", 0)});
  expectConflict(seen.at(0), "MsgFive", "Paper Type: Iron-On Transfer",
                 "Paper Size: Japanese Long Envelope");
}

TEST_F(ConflictTextsTest, TheOkButtonSaysSo) {
  bringAbout(0);
  process({choosing("MsgOne", 0)});
  EXPECT_EQ(toolkit.interface("Conflicts")->button("ibOkButton_MsgOne").title, "OK");
}

TEST_F(ConflictTextsTest, TheWindowTextsAreTranslatedBeforeTheyAreJoined) {
  const TestStrings strings(Translations{{"Paper Type: ", "Papier – %@ "},
                                         {"Paper Size: ", "Größe: "},
                                         {"is not compatible with", "verträgt sich nicht mit"},
                                         {"Conflicting settings", "Widerspruch"},
                                         {"Paper Type: Plain", "Papier – Normal"},
                                         {"OK", "Gut"}});
  panel.setPaper("Greeting");
  panel.format.name = "BannerBA4";
  process({choosing("MsgFive", 1)});
  const SeenWindow& window = seen.at(0);
  EXPECT_EQ(window.label("ibLabelA_MsgFive"), "Papier – %@ Greeting Card");
  EXPECT_EQ(window.label("ibLabelB_MsgFive"), "verträgt sich nicht mit");
  EXPECT_EQ(window.label("ibLabelC_MsgFive"), "Größe: Banner");
  EXPECT_EQ(window.label("ibLabelA_FirstButton_MsgFive"), "Papier – Normal");
  EXPECT_EQ(window.title, "Widerspruch");
  EXPECT_EQ(toolkit.interface("Conflicts")->button("ibOkButton_MsgFive").title, "Gut");
}

// The cartridges can be changed between the check and the window: then nothing names them, and
// the lines stay as they were.
TEST_F(ConflictTextsTest, WithNoCartridgeToNameTheLinesStayAsTheyWere) {
  panel.setColor("Black");
  installCartridges("Black Standard", "Photo Standard");
  process({choosing("MsgFive", 1)});
  panel.setColor("Black");
  root.removePreferences(kTestYear);
  panel.checker->composeMsgFive(2);
  const auto windows = toolkit.interface("Conflicts");
  EXPECT_EQ(windows->label("ibLabelA_MsgFive").text, "Cartridge(s) installed: Photo");
  EXPECT_EQ(windows->label("ibLabelA_FirstButton_MsgFive").text, "Cartridge(s) installed: Photo");
  EXPECT_EQ(windows->label("ibLabelC_MsgFive").text, "Document Color: Black Only");
}

TEST_F(ConflictTextsTest, AnUnknownKindLeavesTheTextsThatDependOnTheKind) {
  process({});  // loads the windows
  const auto windows = toolkit.interface("Conflicts");
  for (const int kind : {-1, 2, 7}) {
    windows->label("ibLabelA_MsgTwo").text = "kept";
    windows->label("ibLabelD_MsgTwo").text.clear();
    panel.checker->composeMsgTwo(kind);
    EXPECT_EQ(windows->label("ibLabelA_MsgTwo").text, "kept") << kind;
    EXPECT_EQ(windows->label("ibLabelD_MsgTwo").text, "Choose an option to resolve the conflict:");
  }
  for (const int kind : {-1, 3, 7}) {
    windows->label("ibLabelC_MsgFive").text = "kept";
    windows->label("ibLabelD_MsgFive").text.clear();
    panel.checker->composeMsgFive(kind);
    EXPECT_EQ(windows->label("ibLabelC_MsgFive").text, "kept") << kind;
    EXPECT_EQ(windows->label("ibLabelD_MsgFive").text, "Choose an option to resolve the conflict:");
  }
}

}  // namespace
}  // namespace tavrin
