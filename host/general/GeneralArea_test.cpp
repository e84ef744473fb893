#include "host/general/GeneralArea.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

#include "host/general/PaperSizeBoxes.h"
#include "host/panes/PickOneControl.h"
#include "host/task/PrintTask.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

constexpr int kPatience = 20'000;  // milliseconds, on a machine that has much to do

class GeneralAreaTest : public testing::Test {
 protected:
  PrintTask task{{}};
  GeneralArea area{task, nullptr};
};

TEST_F(GeneralAreaTest, ShowsWhatIsSuggested) {
  task.fields().suggestCopies(3);
  task.fields().suggestPageRange("2-3");
  EXPECT_EQ(area.findChild<QSpinBox*>("copies")->value(), 3);
  EXPECT_EQ(area.findChild<QLineEdit*>("pageRange")->text(), "2-3");
}

TEST_F(GeneralAreaTest, TakesWhatThePersonSets) {
  area.findChild<QSpinBox*>("copies")->setValue(4);
  EXPECT_EQ(task.fields().copies(), 4);
  QTest::keyClicks(area.findChild<QLineEdit*>("pageRange"), "5,1-3");
  EXPECT_EQ(*task.fields().pageRanges(), "1-3,5");
}

TEST_F(GeneralAreaTest, TellsWhatIsWrongWithThePages) {
  const auto* problem = area.findChild<QLabel*>("pageRangeProblem");
  task.fields().suggestPageRange("5-1");
  area.focusPageRange();
  EXPECT_FALSE(problem->isHidden());
  task.fields().suggestPageRange("5");
  EXPECT_TRUE(problem->isHidden());
}

TEST_F(GeneralAreaTest, AWrongRangeIsForgivenAsSoonAsItIsRight) {
  const auto* problem = area.findChild<QLabel*>("pageRangeProblem");
  auto* range = area.findChild<QLineEdit*>("pageRange");
  QTest::keyClicks(range, "5-1");
  EXPECT_TRUE(problem->isHidden()) << "who is typing is not interrupted";
  emit range->editingFinished();
  EXPECT_FALSE(problem->isHidden());
  QTest::keyClicks(range, "0");
  EXPECT_TRUE(problem->isHidden());
}

TEST_F(GeneralAreaTest, AWrongRangeIsToldAsSoonAsTypingRests) {
  const auto* problem = area.findChild<QLabel*>("pageRangeProblem");
  QTest::keyClicks(area.findChild<QLineEdit*>("pageRange"), "3,x");
  EXPECT_TRUE(problem->isHidden());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !problem->isHidden(); }, kPatience));
}

TEST_F(GeneralAreaTest, TheRangeCountsOnlyWhileItIsChosen) {
  const auto* problem = area.findChild<QLabel*>("pageRangeProblem");
  QRadioButton* all = nullptr;
  QRadioButton* some = nullptr;
  for (auto* button : area.findChildren<QRadioButton*>()) (all ? some : all) = button;
  some->click();
  EXPECT_FALSE(problem->isHidden()) << "no page is named yet";
  all->click();
  EXPECT_TRUE(problem->isHidden());
  EXPECT_EQ(*task.fields().pageRanges(), "");
}

TEST_F(GeneralAreaTest, SaysWhenTheDocumentHasNoSuchPage) {
  const auto* problem = area.findChild<QLabel*>("pageRangeProblem");
  auto* range = area.findChild<QLineEdit*>("pageRange");
  EXPECT_EQ(range->placeholderText(), "for example 1-3,5");
  task.fields().setDocumentPages(8);
  EXPECT_EQ(range->placeholderText(), "1-8");
  QTest::keyClicks(range, "50");
  emit range->editingFinished();
  EXPECT_EQ(problem->text(), "The document has 8 pages; the range “50” holds none of them.");
  range->clear();
  QTest::keyClicks(range, "5");
  EXPECT_TRUE(problem->isHidden());
  auto* pageSet = area.findChild<QComboBox*>("page-set");
  pageSet->setCurrentIndex(pageSet->findData("even"));
  emit pageSet->activated(pageSet->currentIndex());
  EXPECT_FALSE(problem->isHidden()) << "5 is odd";
}

TEST_F(GeneralAreaTest, OffersNoChoiceAmongOnePage) {
  const auto* range = area.findChild<QLineEdit*>("pageRange");
  const auto* pageSet = area.findChild<QComboBox*>("page-set");
  task.fields().setDocumentPages(1);
  EXPECT_FALSE(range->isEnabled());
  EXPECT_EQ(range->placeholderText(), "the document has one page");
  EXPECT_FALSE(pageSet->isEnabled());
  EXPECT_TRUE(pageSet->toolTip().contains("The document has one page."));
  task.fields().setDocumentPages(2);
  EXPECT_TRUE(range->isEnabled());
  EXPECT_TRUE(pageSet->isEnabled());
  EXPECT_EQ(pageSet->toolTip(), "");
}

TEST_F(GeneralAreaTest, CollatesWhereThereAreSeveralCopies) {
  auto* collate = area.findChild<QCheckBox*>("sheet-collate");
  EXPECT_TRUE(collate->isHidden());
  area.findChild<QSpinBox*>("copies")->setValue(2);
  EXPECT_FALSE(collate->isHidden());
  EXPECT_TRUE(collate->isChecked()) << "a person wants sets";
  collate->click();
  EXPECT_EQ(task.fields().value("sheet-collate"), "uncollated");
  area.findChild<QSpinBox*>("copies")->setValue(3);
  EXPECT_EQ(task.fields().value("sheet-collate"), "uncollated") << "but this one does not";
}

TEST_F(GeneralAreaTest, LeavesWhatThePrinterHasItselfToThePrinter) {
  const PPDPtr ppd = makePPD({{"OutputOrder", "PickOne", "Normal", {"Normal", "Reverse"}},
                              {"Collate", "Boolean", "True", {"True", "False"}}});
  PPDMarks marks(*ppd);
  area.setMarks(&marks);
  EXPECT_FALSE(area.findChild<QCheckBox*>("outputorder")->isEnabled());
  EXPECT_FALSE(area.findChild<QCheckBox*>("sheet-collate")->isEnabled());
  area.setMarks(nullptr);
  EXPECT_TRUE(area.findChild<QCheckBox*>("outputorder")->isEnabled());
}

TEST_F(GeneralAreaTest, ShowsThePapersOfThePrinter) {
  const PPDPtr ppd = makePPD({pageSizeOption()});
  PPDMarks marks(*ppd);
  area.setMarks(&marks);
  auto* papers = area.findChild<PickOneControl*>("PageSize");
  ASSERT_NE(papers, nullptr);
  EXPECT_EQ(papers->currentData().toString().toStdString(), marks.choice("PageSize"));
  area.setMarks(nullptr);
}

TEST_F(GeneralAreaTest, AsksForTheSizeOfThePersonsOwnPaper) {
  QLocale::setDefault(QLocale("en_GB"));
  const PPDPtr ppd = makePPD({pageSizeOption()}, customPaperAttributes());
  PPDMarks marks(*ppd);
  area.setMarks(&marks);
  auto* papers = area.findChild<PickOneControl*>("PageSize");
  const auto* boxes = area.findChild<PaperSizeBoxes*>();
  EXPECT_TRUE(boxes->isHidden());
  emit papers->activated(papers->findData("Custom"));
  EXPECT_FALSE(boxes->isHidden());
  area.findChild<QDoubleSpinBox*>("paperWidth")->setValue(100);
  area.findChild<QDoubleSpinBox*>("paperHeight")->setValue(150);
  EXPECT_EQ(markedCustomPaper(*ppd), "Custom.100x150mm");
  EXPECT_EQ(area.summary().back(),
            (std::pair<QString, QString>("Paper Size", "100.0 mm × 150.0 mm")));
  marks.choose("PageSize", "A4");
  EXPECT_TRUE(boxes->isHidden());
  area.setMarks(nullptr);
  QLocale::setDefault(QLocale::system());
}

}  // namespace
}  // namespace tavrin
