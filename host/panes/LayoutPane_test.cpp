#include "host/panes/LayoutPane.h"

#include <QComboBox>
#include <gtest/gtest.h>

#include "host/panes/PickOneControl.h"
#include "host/task/JobFields.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

PPDOptionText duplexOption() {
  return {"Duplex/Two-Sided", "PickOne", "None", {"None/Off", "DuplexNoTumble/Long Edge"}};
}

TEST(LayoutPane, OffersTwoSidedOnlyWhereThePrinterCan) {
  JobFields fields;
  LayoutPane pane(fields, nullptr);
  EXPECT_EQ(pane.summary().size(), 1u);
  const PPDPtr ppd = makePPD({duplexOption()});
  PPDMarks marks(*ppd);
  pane.setMarks(&marks);
  EXPECT_NE(pane.findChild<PickOneControl*>("Duplex"), nullptr);
  marks.choose("Duplex", "DuplexNoTumble");
  EXPECT_EQ(pane.summary().back(), (std::pair<QString, QString>("Two-Sided", "Long Edge")));
  pane.setMarks(nullptr);
  EXPECT_EQ(pane.findChild<PickOneControl*>("Duplex"), nullptr);
}

TEST(LayoutPane, ShowsASuggestionAndTakesThePersonsNumber) {
  JobFields fields;
  fields.suggestPagesPerSheet(4);
  LayoutPane pane(fields, nullptr);
  auto* popUp = pane.findChild<QComboBox*>("pagesPerSheet");
  EXPECT_EQ(popUp->currentData(), 4);
  fields.suggestPagesPerSheet(2);
  EXPECT_EQ(popUp->currentData(), 2);
  popUp->setCurrentIndex(popUp->findData(9));
  emit popUp->activated(popUp->currentIndex());
  EXPECT_EQ(fields.pagesPerSheet(), 9);
}

}  // namespace
}  // namespace tavrin
