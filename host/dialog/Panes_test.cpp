#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <gtest/gtest.h>

#include "host/dialog/GeneralArea.h"
#include "host/dialog/Note.h"
#include "host/dialog/PaneSwitcher.h"
#include "host/dialog/PrinterPopUp.h"
#include "host/panes/LayoutPane.h"
#include "host/panes/OptionControl.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

PPDOptionText duplexOption() {
  return {"Duplex/Two-Sided", "PickOne", "None", {"None/Off", "DuplexNoTumble/Long Edge"}};
}

// A pane that notes when it is shown, and can refuse to be left.
class StubPane final : public Pane {
 public:
  using Pane::Pane;
  Lines summary() const override { return {}; }
  void willShow() override { ++shows; }
  bool shouldHide() override { return mayLeave; }

  int shows = 0;
  bool mayLeave = true;
};

Printer printer(const char* name, const char* instance = "") {
  Printer made;
  made.name = name;
  made.instance = instance;
  made.state.activity = PrinterState::Activity::idle;
  return made;
}

TEST(LayoutPane, OffersTwoSidedOnlyWhereThePrinterCan) {
  LayoutPane pane(nullptr);
  EXPECT_EQ(pane.summary().size(), 1u);
  const PPDPtr ppd = makePPD({duplexOption()});
  PPDMarks marks(*ppd);
  pane.setMarks(&marks);
  EXPECT_NE(pane.findChild<PickOneControl*>("Duplex"), nullptr);
  marks.choose("Duplex", "DuplexNoTumble");
  EXPECT_EQ(pane.summary().back(), (std::pair<QString, QString>("Two-sided", "Long Edge")));
  pane.setMarks(nullptr);
  EXPECT_EQ(pane.findChild<PickOneControl*>("Duplex"), nullptr);
}

TEST(LayoutPane, TakesASuggestionUntilThePersonPicks) {
  LayoutPane pane(nullptr);
  EXPECT_TRUE(pane.suggestPagesPerSheet(4));
  EXPECT_EQ(pane.pagesPerSheet(), 4);
  EXPECT_FALSE(pane.suggestPagesPerSheet(5));
  EXPECT_EQ(pane.pagesPerSheet(), 4);
  auto* popUp = pane.findChild<QComboBox*>("pagesPerSheet");
  popUp->setCurrentIndex(popUp->findData(9));
  emit popUp->activated(popUp->currentIndex());
  EXPECT_TRUE(pane.suggestPagesPerSheet(1));
  EXPECT_EQ(pane.pagesPerSheet(), 9);
}

TEST(GeneralArea, TellsWhatIsWrongWithThePages) {
  GeneralArea area(nullptr);
  EXPECT_EQ(*area.pageRanges(), "");
  area.suggestPageRanges("5,1-3");
  EXPECT_EQ(*area.pageRanges(), "1-3,5");
  area.suggestPageRanges("5-1");
  ASSERT_FALSE(area.pageRanges());
  area.focusPageRanges();
  EXPECT_FALSE(area.findChild<QLabel*>("pageRangeProblem")->isHidden());
  area.suggestPageRanges("5");
  EXPECT_TRUE(area.findChild<QLabel*>("pageRangeProblem")->isHidden());
}

TEST(GeneralArea, ShowsThePapersOfThePrinter) {
  GeneralArea area(nullptr);
  const PPDPtr ppd = makePPD({pageSizeOption()});
  PPDMarks marks(*ppd);
  area.setMarks(&marks);
  auto* papers = area.findChild<PickOneControl*>("PageSize");
  ASSERT_NE(papers, nullptr);
  EXPECT_EQ(papers->currentData().toString().toStdString(), marks.choice("PageSize"));
}

TEST(PaneSwitcher, StaysWhereAPaneRefusesToBeLeft) {
  PaneSwitcher switcher(nullptr);
  StubPane first("First", &switcher);
  StubPane second("Second", &switcher);
  switcher.setPanes({&first, &second}, "Second");
  EXPECT_EQ(switcher.current(), &second);
  EXPECT_EQ(second.shows, 1);
  auto* popUp = switcher.findChild<QComboBox*>("panes");
  second.mayLeave = false;
  popUp->setCurrentIndex(0);
  EXPECT_EQ(switcher.current(), &second);
  EXPECT_EQ(popUp->currentText(), "Second");
  second.mayLeave = true;
  popUp->setCurrentIndex(0);
  EXPECT_EQ(switcher.current(), &first);
  EXPECT_TRUE(second.isHidden());
}

TEST(PrinterPopUp, ShowsWhatEachPrinterIsDoing) {
  PrinterPopUp popUp(nullptr);
  EXPECT_TRUE(popUp.setPrinters({printer("attic"), printer("office"), printer("office", "draft")},
                                "office/draft"));
  EXPECT_EQ(popUp.selected()->instance, "draft");
  EXPECT_EQ(popUp.currentText(), "office/draft — Idle");
  popUp.setStateText("office", "does not answer");
  EXPECT_EQ(popUp.itemText(1), "office — does not answer");
  EXPECT_EQ(popUp.itemText(2), "office/draft — does not answer");
  EXPECT_EQ(popUp.itemText(0), "attic — Idle");
}

TEST(PrinterPopUp, SelectsTheDefaultPrinterElseTheFirst) {
  PrinterPopUp popUp(nullptr);
  std::vector<Printer> printers{printer("attic"), printer("office")};
  EXPECT_TRUE(popUp.setPrinters(printers, ""));
  EXPECT_EQ(popUp.selected()->name, "attic");
  printers[1].isDefault = true;
  EXPECT_TRUE(popUp.setPrinters(printers, ""));
  EXPECT_EQ(popUp.selected()->name, "office");
  EXPECT_FALSE(popUp.setPrinters(printers, "cellar"));
  EXPECT_EQ(popUp.selected(), nullptr);
}

TEST(Note, IsThereOnlyWithSomethingToSay) {
  Note note(nullptr);
  EXPECT_TRUE(note.isHidden());
  note.say("<b>Look</b>");
  EXPECT_FALSE(note.isHidden());
  EXPECT_EQ(note.text(), "<b>Look</b>");
  note.clear();
  EXPECT_TRUE(note.isHidden());
}

}  // namespace
}  // namespace tavrin
