#include "host/panes/OptionControl.h"

#include <QTest>
#include <gtest/gtest.h>

#include "host/panes/BooleanControl.h"
#include "host/panes/PickManyControl.h"
#include "host/panes/PickOneControl.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

template <class Control>
Control* controlFor(PPDMarks& marks, const char* keyword, QWidget& parent) {
  return dynamic_cast<Control*>(makeOptionControl(marks, *marks.option(keyword), &parent));
}

TEST(OptionControl, ShowsWhatIsMarkedAndMarksWhatIsPicked) {
  const PPDPtr ppd = makePPD({paperTypeOption()});
  PPDMarks marks(*ppd);
  QWidget parent;
  auto* popUp = controlFor<PickOneControl>(marks, "MediaType", parent);
  ASSERT_NE(popUp, nullptr);
  EXPECT_EQ(popUp->currentData().toString().toStdString(), marks.choice("MediaType"));
  const int ironOn = popUp->findData("IronOn");
  popUp->setCurrentIndex(ironOn);
  emit popUp->activated(ironOn);
  EXPECT_EQ(marks.choice("MediaType"), "IronOn");
}

TEST(OptionControl, FollowsAChoiceMadeElsewhere) {
  const PPDPtr ppd = makePPD({paperTypeOption(), mirrorOption()});
  PPDMarks marks(*ppd);
  QWidget parent;
  auto* popUp = controlFor<PickOneControl>(marks, "MediaType", parent);
  auto* box = controlFor<BooleanControl>(marks, "Mirror", parent);
  marks.choose("MediaType", "IronOn");
  marks.choose("Mirror", "True");
  EXPECT_EQ(popUp->currentData().toString(), "IronOn");
  EXPECT_TRUE(box->isChecked());
}

TEST(OptionControl, TellsChoicesThatReadAlikeApart) {
  const PPDPtr ppd = makePPD({{"PageSize/Paper Size",
                               "PickOne",
                               "Letter",
                               {"Letter/US Letter", "A4/A4", "LetterSmall/US Letter"}}});
  PPDMarks marks(*ppd);
  QWidget parent;
  auto* papers = controlFor<PickOneControl>(marks, "PageSize", parent);
  EXPECT_EQ(papers->itemText(papers->findData("Letter")), "US Letter");
  EXPECT_EQ(papers->itemText(papers->findData("LetterSmall")), "US Letter (LetterSmall)");
}

TEST(OptionControl, OffersAValueOfThePersonsOwnWhereSomebodyAsksForIt) {
  const PPDPtr ppd = makePPD({pageSizeOption()}, customPaperAttributes());
  PPDMarks marks(*ppd);
  QWidget parent;
  auto* papers = controlFor<PickOneControl>(marks, "PageSize", parent);
  EXPECT_EQ(papers->findData("Custom"), -1);
  papers->offerCustom();
  const int own = papers->findData("Custom");
  EXPECT_EQ(papers->itemText(own), "Own Size…");
  int asked = 0;
  QObject::connect(papers, &PickOneControl::customWanted, [&] { ++asked; });
  emit papers->activated(own);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(marks.choice("PageSize"), "A4") << "nobody has said how large";
  marks.choose("PageSize", "Custom.10x15cm");
  EXPECT_EQ(papers->currentText(), "Own Size…");
}

TEST(OptionControl, ClicksTurnABooleanOnAndOff) {
  const PPDPtr ppd = makePPD({mirrorOption()});
  PPDMarks marks(*ppd);
  QWidget parent;
  auto* box = controlFor<BooleanControl>(marks, "Mirror", parent);
  ASSERT_NE(box, nullptr);
  QTest::keyClick(box, Qt::Key_Space);
  EXPECT_EQ(marks.choice("Mirror"), "True");
  QTest::keyClick(box, Qt::Key_Space);
  EXPECT_EQ(marks.choice("Mirror"), "False");
}

TEST(OptionControl, ShowsThatNothingIsChosen) {
  const PPDPtr ppd = parsePPD(ppdText({paperTypeOption(), mirrorOption()}), false);
  PPDMarks marks(*ppd);
  QWidget parent;
  EXPECT_EQ(controlFor<PickOneControl>(marks, "MediaType", parent)->currentIndex(), -1);
  EXPECT_EQ(controlFor<BooleanControl>(marks, "Mirror", parent)->checkState(),
            Qt::PartiallyChecked);
}

TEST(OptionControl, LetsAListHoldSeveral) {
  const PPDPtr ppd =
      makePPD({{"Finish/Finishing", "PickMany", "Staple", {"Staple/Staple", "Punch/Punch"}}});
  PPDMarks marks(*ppd);
  QWidget parent;
  auto* list = controlFor<PickManyControl>(marks, "Finish", parent);
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->item(0)->checkState(), Qt::Checked);
  list->item(1)->setCheckState(Qt::Checked);
  EXPECT_EQ(marks.choiceText("Finish"), "Staple, Punch");
}

TEST(OptionControl, ShowsTextsAsTheyAre) {
  const PPDPtr ppd = makePPD({{"Gloss/Gloss & <i>Shine</i>", "Boolean", "False", {"True", "False"}},
                              {"Ink/Ink", "PickOne", "A", {"A/R&D <i>ink</i>"}}});
  PPDMarks marks(*ppd);
  QWidget parent;
  auto* box = controlFor<BooleanControl>(marks, "Gloss", parent);
  EXPECT_EQ(box->text(), "Gloss && <i>Shine</i>");
  EXPECT_TRUE(box->shortcut().isEmpty());
  EXPECT_EQ(box->accessibleName(), "Gloss & <i>Shine</i>");
  EXPECT_EQ(controlFor<PickOneControl>(marks, "Ink", parent)->currentText(), "R&D <i>ink</i>");
}

}  // namespace
}  // namespace tavrin
