#include "controller/PanelView.h"

#include "tests/fixtures/ControllerTest.h"

namespace tavrin {
namespace {

class MainView : public ControllerTest {
 protected:
  Rect frameOf(const std::string& name) { return panel().view(name).place; }
  void disclose() { panel().click("ibDisclosure", "disclosureAction:"); }
};

TEST_F(MainView, IsNullWithoutItsInterfaceFile) {
  toolkit.missing = {"TavrinPDENIB"};
  show(fullPrinter());
  EXPECT_EQ(view, nullptr);
}

TEST_F(MainView, IsLoadedOnce) {
  show(fullPrinter());
  EXPECT_EQ(view, controller->mainView());
  EXPECT_EQ(view.get(), &panel().view("ibPDEView"));
}

TEST_F(MainView, OfAMissingFileIsLookedForAgain) {
  toolkit.missing = {"TavrinPDENIB"};
  start(makePPD(fullPrinter()));
  EXPECT_EQ(controller->mainView(), nullptr);
  toolkit.missing = {};
  EXPECT_NE(controller->mainView(), nullptr);
}

TEST_F(MainView, IsNullInAFileWithoutItAndTheRestIsLaidOutOnce) {
  toolkit.unconnected = {"ibPDEView"};
  int loads = 0;
  toolkit.onLoad = [&loads](const std::string&, FakeInterface& file) {
    ++loads;
    file.view("ibHeaderView").place = {0, 100, 400, 200};
  };
  start(makePPD({tray2Option("False")}));
  for (int call = 0; call < 3; ++call) {
    EXPECT_EQ(controller->mainView(), nullptr);
    EXPECT_EQ(loads, 1);
    EXPECT_EQ(frameOf("ibHeaderView"), (Rect{0, 65, 400, 200}));
  }
}

TEST_F(MainView, StartsCollapsed) {
  show(fullPrinter());
  EXPECT_TRUE(panel().view("ibAdvancedView").hidden);
  EXPECT_EQ(frameOf("ibPDEView"), (Rect{0, 0, 400, 200}));
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{0, 100, 400, 200}));
}

TEST_F(MainView, DisclosesTheAdvancedArea) {
  show(fullPrinter());
  disclose();
  EXPECT_FALSE(panel().view("ibAdvancedView").hidden);
  EXPECT_EQ(frameOf("ibPDEView"), (Rect{0, 0, 400, 300}));
  disclose();
  EXPECT_TRUE(panel().view("ibAdvancedView").hidden);
  EXPECT_EQ(frameOf("ibPDEView"), (Rect{0, 0, 400, 200}));
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{0, 100, 400, 200}));
}

TEST_F(MainView, PutsTheHeaderInItsPlaceWhenItDisclosesOnly) {
  show(fullPrinter());
  disclose();
  panel().view("ibHeaderView").setFrameOrigin(5, 7);
  disclose();
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{5, 7, 400, 200}));
  disclose();
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{0, 100, 400, 200}));
}

TEST_F(MainView, AsksToBeDrawnAgain) {
  show(fullPrinter());
  const int before = panel().view("ibPDEView").redisplays;
  disclose();
  EXPECT_EQ(panel().view("ibPDEView").redisplays, before + 1);
}

TEST_F(MainView, WithoutSecondTrayFreesThePaperSourceRow) {
  show({paperSourceOption(), tray2Option("False")});
  EXPECT_TRUE(panel().popUp("ibPaperSource").hidden);
  EXPECT_TRUE(panel().label("ibPaperSourceLabel").hidden);
  EXPECT_EQ(panel().button("ibDisclosure").place, (Rect{10, 45, 20, 20}));
  EXPECT_EQ(panel().label("ibDisclosureLabel").place, (Rect{40, 45, 100, 20}));
  EXPECT_EQ(panel().label("advancedSummaryLabel").place, (Rect{150, 45, 100, 20}));
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{0, 65, 400, 200}));
  EXPECT_EQ(frameOf("ibPDEView"), (Rect{0, 0, 400, 200}));
}

TEST_F(MainView, WithoutSecondTrayExpandsToALowerPanel) {
  show({tray2Option("False")});
  disclose();
  EXPECT_EQ(frameOf("ibPDEView"), (Rect{0, 0, 400, 260}));
  EXPECT_EQ(frameOf("ibHeaderView"), (Rect{0, 65, 400, 200}));
}

}  // namespace
}  // namespace tavrin
