#include "platform/toolkit/Toolkit.h"

#include <gtest/gtest.h>

#include "platform/files/Bundle.h"

namespace tavrin {
namespace {

TEST(NullObject, OfAPopUpIgnoresCommandsAndAnswersNothing) {
  PopUpButton& popUp = nullObject<PopUpButton>();
  popUp.addItem("Plain", "Plain");
  popUp.selectItemWithTitle("Plain");
  EXPECT_EQ(popUp.numberOfItems(), 0);
  EXPECT_EQ(popUp.indexOfSelectedItem(), 0);
  EXPECT_FALSE(popUp.titleOfSelectedItem());
  EXPECT_FALSE(popUp.itemValue(0));
  popUp.setEnabled(true);
  EXPECT_FALSE(popUp.isEnabled());
}

TEST(NullObject, OfAButtonAndASliderStaysAtZero) {
  nullObject<Button>().setState(1);
  nullObject<Button>().setTitle("OK");
  nullObject<Button>().setEnabled(true);
  EXPECT_EQ(nullObject<Button>().intValue(), 0);
  EXPECT_FALSE(nullObject<Button>().isEnabled());
  nullObject<Slider>().setIntValue(3);
  EXPECT_EQ(nullObject<Slider>().intValue(), 0);
}

TEST(NullObject, OfAViewHasNoFrame) {
  for (View* view : {&nullObject<View>(), static_cast<View*>(&nullObject<Label>())}) {
    view->setFrame({1, 2, 3, 4});
    view->setFrameOrigin(5, 6);
    view->setFrameSize(7, 8);
    view->setHidden(true);
    view->setNeedsDisplay();
    EXPECT_EQ(view->frame(), Rect());
    EXPECT_FALSE(view->isHidden());
  }
}

TEST(NullObject, OfAWindowAndALabelTakesEveryCommand) {
  nullObject<Label>().setStringValue("text");
  nullObject<Label>().setTextColor(TextColor::black);
  nullObject<Window>().setTitle("title");
  nullObject<Window>().center();
  nullObject<Window>().display();
  nullObject<Window>().close();
  nullObject<Window>().close();
}

// A view that keeps its frame and nothing else.
class PlainView final : public View {
 public:
  Rect frame() const override { return place; }
  void setFrame(const Rect& frame) override { place = frame; }
  bool isHidden() const override { return false; }
  void setHidden(bool) override {}
  void setNeedsDisplay() override {}

 private:
  Rect place{1, 2, 30, 40};
};

TEST(View, MovesWithoutChangingItsSizeAndTheOtherWayRound) {
  PlainView view;
  view.setFrameOrigin(5, 6);
  EXPECT_EQ(view.frame(), (Rect{5, 6, 30, 40}));
  view.setFrameSize(7, 8);
  EXPECT_EQ(view.frame(), (Rect{5, 6, 7, 8}));
}

TEST(Outlet, StandsOnTheNullObjectUntilItIsConnected) {
  Outlet<View> outlet;
  EXPECT_FALSE(outlet.isConnected());
  EXPECT_EQ(&*outlet, &nullObject<View>());
  PlainView view;
  outlet.connect(view);
  EXPECT_TRUE(outlet.isConnected());
  EXPECT_EQ(outlet->frame().width, 30);
}

TEST(InterfaceBindings, OfferOutletsAndActionsByName) {
  Outlet<Button> button;
  int pressed = 0;
  InterfaceBindings bindings;
  bindings.outlet("ibButton", button);
  bindings.action<Button>("press:", [&pressed](Button&) { ++pressed; });
  EXPECT_EQ(std::get<Outlet<Button>*>(bindings.outlets.at("ibButton")), &button);
  std::get<std::function<void(Button&)>>(bindings.actions.at("press:"))(*button);
  EXPECT_EQ(pressed, 1);
}

class FakeToolkit final : public Toolkit {
 public:
  std::shared_ptr<LoadedInterface> loadInterface(const Bundle&, const std::string&,
                                                 InterfaceBindings) override {
    return nullptr;
  }
  bool runModalForWindow(Window&) override { return true; }
  void stopModal() override {}
};

TEST(Toolkit, BeforeOneIsInstalledNothingLoadsAndNothingRuns) {
  EXPECT_EQ(Toolkit::current().loadInterface(Bundle(), "Conflicts", {}), nullptr);
  EXPECT_FALSE(Toolkit::current().runModalForWindow(nullObject<Window>()));
  Toolkit::current().stopModal();
}

TEST(Toolkit, IsTheOneThatTheProgramInstalled) {
  FakeToolkit toolkit;
  Toolkit::install(&toolkit);
  EXPECT_EQ(&Toolkit::current(), &toolkit);
  Toolkit::install(nullptr);
  EXPECT_NE(&Toolkit::current(), &toolkit);
}

}  // namespace
}  // namespace tavrin
