#include "host/fields/LayoutPane.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <gtest/gtest.h>

#include "host/panes/PickOneControl.h"
#include "host/task/JobFields.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

using Line = std::pair<QString, QString>;

PPDOptionText duplexOption() {
  return {"Duplex/Two-Sided",
          "PickOne",
          "None",
          {"None/Off", "DuplexNoTumble/Long Edge", "DuplexTumble/Short Edge"}};
}

class LayoutPaneTest : public testing::Test {
 protected:
  template <class Control = QComboBox>
  Control* control(const char* option) const {
    return pane.findChild<Control*>(option);
  }
  void pick(const char* option, const char* value) const {
    auto* popUp = control(option);
    popUp->setCurrentIndex(popUp->findData(value));
    emit popUp->activated(popUp->currentIndex());
  }
  QString line(const QString& name) const {
    for (const Line& line : pane.summary())
      if (line.first == name) return line.second;
    return {};
  }

  JobFields fields;
  LayoutPane pane{fields, nullptr};
};

TEST_F(LayoutPaneTest, ShowsASuggestionAndTakesThePersonsChoice) {
  fields.suggestPagesPerSheet(4);
  EXPECT_EQ(control("number-up")->currentData(), "4");
  pick("number-up", "9");
  EXPECT_EQ(fields.pagesPerSheet(), 9);
  pick("orientation-requested", "4");
  EXPECT_EQ(fields.value("orientation-requested"), "4");
  EXPECT_EQ(line("Orientation"), "Landscape");
}

TEST_F(LayoutPaneTest, OffersThePrintersWayOfPrintingBothSides) {
  const PPDPtr ppd = makePPD({duplexOption()});
  PPDMarks marks(*ppd);
  pane.setMarks(&marks);
  EXPECT_NE(control<PickOneControl>("Duplex"), nullptr);
  EXPECT_EQ(control("sides"), nullptr);
  marks.choose("Duplex", "DuplexNoTumble");
  EXPECT_EQ(pane.summary().back(), Line("Two-Sided", "Long Edge"));
  pane.setMarks(nullptr);
  EXPECT_EQ(control("Duplex"), nullptr);
}

TEST_F(LayoutPaneTest, OffersToPrintBothSidesByHandWhereThePrinterCannot) {
  EXPECT_EQ(control("sides")->itemText(1), "Long-Edge Binding") << "who knows what the printer can";
  const PPDPtr ppd = makePPD({mirrorOption()});
  PPDMarks marks(*ppd);
  pane.setMarks(&marks);
  EXPECT_EQ(control("sides")->itemText(0), "Off");
  pick("sides", "two-sided-long-edge");
  EXPECT_EQ(fields.value("sides"), "two-sided-long-edge");
  EXPECT_EQ(line("Two-Sided"), "Long-Edge Binding, by Hand");
  pane.setMarks(nullptr);
}

TEST_F(LayoutPaneTest, ShowsOrderAndBorderWhereTheyMatter) {
  EXPECT_TRUE(control("page-border")->isHidden());
  EXPECT_EQ(line("Border"), QString());
  pick("number-up", "2");
  EXPECT_FALSE(control("page-border")->isHidden());
  EXPECT_FALSE(control("number-up-layout")->isHidden());
  EXPECT_EQ(line("Border"), "None");
  pick("number-up", "1");
  EXPECT_TRUE(control("page-border")->isHidden());
  fields.suggestValue("page-border", "double");
  EXPECT_FALSE(control("page-border")->isHidden()) << "it was asked for all the same";
}

TEST_F(LayoutPaneTest, HasABoxForThePercentage) {
  auto* percent = control<QSpinBox>("scaling");
  EXPECT_TRUE(percent->isHidden());
  auto* ways = control("print-scaling");
  ways->setCurrentText("Percent");
  emit ways->activated(ways->currentIndex());
  EXPECT_FALSE(percent->isHidden());
  percent->setValue(50);
  EXPECT_EQ(fields.options(), (OptionList{{"scaling", "50"}}));
  EXPECT_EQ(line("Size on Sheet"), "50 %");
  fields.setPictures(0, 1);
  EXPECT_EQ(line("Size on Sheet"), "50 % of actual size");
  fields.setPictures(1, 1);
  EXPECT_EQ(percent->text(), "50 % of what fits");
}

TEST_F(LayoutPaneTest, ShowsASizeThatWasGivenInAnotherWay) {
  auto* ways = control("print-scaling");
  EXPECT_EQ(ways->count(), 5);
  fields.suggest({}, {{"ppi", "300"}});
  EXPECT_EQ(ways->currentText(), "As Given");
  fields.suggest({}, {});
  EXPECT_EQ(ways->count(), 5);
  EXPECT_EQ(ways->currentText(), "Automatic");
}

TEST_F(LayoutPaneTest, ABookletIsTurnedOverTheShortEdge) {
  const PPDPtr ppd = makePPD({duplexOption()});
  PPDMarks marks(*ppd);
  pane.setMarks(&marks);
  auto* booklet = control<QCheckBox>("booklet");
  booklet->click();
  EXPECT_EQ(marks.choice("Duplex"), "DuplexTumble");
  EXPECT_FALSE(control("number-up")->isEnabled());
  booklet->click();
  EXPECT_EQ(marks.choice("Duplex"), "None");
  booklet->click();
  marks.choose("Duplex", "DuplexNoTumble");
  booklet->click();
  EXPECT_EQ(marks.choice("Duplex"), "DuplexNoTumble") << "the person has chosen";
  pane.setMarks(nullptr);
}

TEST_F(LayoutPaneTest, ABookletIsPrintedOnBothSidesByHandWhereThePrinterCannot) {
  control<QCheckBox>("booklet")->click();
  EXPECT_EQ(fields.value("sides"), "two-sided-short-edge");
  EXPECT_EQ(line("Pages per Sheet"), "2");
  EXPECT_EQ(control("number-up")->currentText(), "2");
  control<QCheckBox>("booklet")->click();
  EXPECT_EQ(fields.value("sides"), "one-sided");
}

TEST_F(LayoutPaneTest, OffersToPutSeveralPicturesTogether) {
  auto* together = control<QCheckBox>("multiple-document-handling");
  EXPECT_TRUE(together->isHidden());
  fields.setPictures(2, 2);
  EXPECT_FALSE(together->isHidden());
  together->click();
  EXPECT_EQ(fields.value("multiple-document-handling"), "single-document");
}

TEST_F(LayoutPaneTest, LeavesWhatThePrinterHasItselfToThePrinter) {
  const PPDPtr ppd = makePPD({{"Booklet/Booklet", "PickOne", "None", {"None", "Left"}}});
  PPDMarks marks(*ppd);
  pane.setMarks(&marks);
  EXPECT_FALSE(control<QCheckBox>("booklet")->isEnabled());
  EXPECT_EQ(line("Booklet"), QString());
  pane.setMarks(nullptr);
  EXPECT_TRUE(control<QCheckBox>("booklet")->isEnabled());
}

}  // namespace
}  // namespace tavrin
