#include "host/panes/PanelPane.h"

#include <gtest/gtest.h>

#include "host/panels/PrinterSession.h"
#include "tests/fakes/FakePPD.h"
#include "tests/fakes/FakePanel.h"

namespace tavrin {
namespace {

TEST(PanelPane, TakesThePanelsChoicesAlongWhenItIsLeft) {
  PanelDiary diary;
  PrinterSession session{SharedPPD(makePPD(fullPrinter()))};
  session.addPanels(FakePlugIn::loaded(diary));
  PanelPane pane(*session.panels().front(), session, nullptr);
  EXPECT_EQ(pane.name(), "Paper & Ink");
  pane.willShow();
  EXPECT_TRUE(pane.shouldHide());
  EXPECT_EQ(session.marks().choice("MediaType"), "IronOn");
  EXPECT_EQ(pane.summary(), (Pane::Lines{{"Paper Type", "IronOn"}}));
}

}  // namespace
}  // namespace tavrin
