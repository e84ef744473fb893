#include "platform/toolkit/InterfaceBindings.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

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

}  // namespace
}  // namespace tavrin
