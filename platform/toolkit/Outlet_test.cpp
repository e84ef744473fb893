#include "platform/toolkit/Outlet.h"

#include <gtest/gtest.h>

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

TEST(Outlet, StandsOnTheNullObjectUntilItIsConnected) {
  Outlet<View> outlet;
  EXPECT_FALSE(outlet.isConnected());
  EXPECT_EQ(&*outlet, &nullObject<View>());
  View& other = nullObject<Label>();
  outlet.connect(other);
  EXPECT_TRUE(outlet.isConnected());
  EXPECT_EQ(&*outlet, &other);
}

}  // namespace
}  // namespace tavrin
