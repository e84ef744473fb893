#include "host/panels/PrinterSession.h"

#include <gtest/gtest.h>

#include "tests/fakes/FakePPD.h"
#include "tests/fakes/FakePanel.h"

namespace tavrin {
namespace {

class PrinterSessionTest : public testing::Test {
 protected:
  FakePanel& panel() { return static_cast<FakePanel&>(*session.panels().front()); }

  PanelDiary diary;
  PrinterSession session{SharedPPD(makePPD(fullPrinter()))};
};

TEST_F(PrinterSessionTest, KeepsTheMarksInStepWithThePanel) {
  ASSERT_EQ(session.addPanels(FakePlugIn::loaded(diary)), "");
  int refreshed = 0;
  QObject::connect(&session.marks(), &PPDMarks::refreshed, [&] { ++refreshed; });
  EXPECT_EQ(session.takePanelChoices(), "");
  EXPECT_EQ(session.marks().choice("MediaType"), "IronOn");
  EXPECT_EQ(refreshed, 1);
  EXPECT_TRUE(diary.told.empty()) << "the panel knows what it chose itself";
}

TEST_F(PrinterSessionTest, MarksNothingForAnAbsentOrUnknownChoice) {
  session.markAnew({{"MediaType", "IronOn"}});
  session.addPanels(FakePlugIn::loaded(diary));
  for (const OptString& choice : {OptString(), OptString("Velvet")}) {
    panel().chosen = choice;
    EXPECT_EQ(session.takePanelChoices(), "");
    EXPECT_EQ(session.marks().choice("MediaType"), "IronOn");
  }
}

TEST_F(PrinterSessionTest, TellsThePanelOfChoicesMadeElsewhere) {
  session.markAnew({});
  session.addPanels(FakePlugIn::loaded(diary));
  session.marks().choose("Mirror", "True");
  const std::vector<std::pair<std::string, OptString>> expected{{"Mirror", "True"}};
  EXPECT_EQ(diary.told, expected);
}

TEST_F(PrinterSessionTest, RestoresThePanelWhenAnotherInstanceIsMarked) {
  session.addPanels(FakePlugIn::loaded(diary));
  diary.calls.clear();
  session.markAnew({{"MediaType", "Transparency"}});
  EXPECT_EQ(diary.calls, std::vector<std::string>{"restore Transparency"});
}

TEST_F(PrinterSessionTest, NamesASavedChoiceThatThePrinterDoesNotHave) {
  const auto problems = session.markAnew({{"MediaType", "Velvet"}});
  ASSERT_EQ(problems.size(), 1u);
  EXPECT_NE(problems.front().find("Velvet"), std::string::npos);
}

TEST_F(PrinterSessionTest, ShowsThePanelTheJobsPaperAndColumns) {
  session.addPanels(FakePlugIn::loaded(diary));
  EXPECT_EQ(panel().host.pageFormat()->paper(), nullptr);
  session.markAnew({});
  session.marks().choose("PageSize", "A4");
  ASSERT_NE(panel().host.pageFormat()->paper(), nullptr);
  EXPECT_EQ(panel().host.pageFormat()->paper()->ppdPaperName(), "A4");
  session.setPagesPerSheet(6);
  EXPECT_EQ(panel().host.printSettings()->value(kPMLayoutColumns), "3");
}

TEST_F(PrinterSessionTest, KnowsWhatThePanelClaims) {
  EXPECT_TRUE(session.claimedKeywords().empty());
  session.addPanels(FakePlugIn::loaded(diary));
  EXPECT_EQ(session.claimedKeywords(), std::set<std::string>{"MediaType"});
}

TEST(PrinterSessionPlugIn, IsMissedInASentence) {
  const auto withExtension = [](const std::string& name) {
    PrinterSession session{
        SharedPPD(makePPD(fullPrinter(), {"*APDialogExtension: \"" + name + "\""}))};
    return session.loadPanels();
  };
  EXPECT_NE(withExtension("/elsewhere/Nowhere.plugin").find("Nowhere.plugin"), std::string::npos);
  PrinterSession plain{SharedPPD(makePPD(fullPrinter()))};
  EXPECT_EQ(plain.loadPanels(), "");
}

}  // namespace
}  // namespace tavrin
