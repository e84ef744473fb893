#include "plugin/TavrinPDEPlugin.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "platform/files/Bundle.h"
#include "tests/fakes/FakeJob.h"

namespace tavrin {
namespace {

TEST(TavrinPDEPlugin, AcceptsAnyBundle) {
  TavrinPDEPlugin plugIn;
  const Bundle bundle;
  EXPECT_TRUE(plugIn.initWithBundle(&bundle));
  EXPECT_TRUE(plugIn.initWithBundle(nullptr));
}

TEST(TavrinPDEPlugin, MakesOneNewPanelForThePrintDialog) {
  TavrinPDEPlugin plugIn;
  FakeHost host;
  const auto first = plugIn.PDEPanelsForType("BDB091F4-E57F-11D3-B5CC-0050E4603277", &host);
  const auto second = plugIn.PDEPanelsForType("BDB091F4-E57F-11D3-B5CC-0050E4603277", &host);
  ASSERT_TRUE(first && second);
  ASSERT_EQ(first->size(), 1u);
  ASSERT_EQ(second->size(), 1u);
  EXPECT_NE(first->front(), second->front());
}

TEST(TavrinPDEPlugin, MakesNothingForAnyOtherType) {
  TavrinPDEPlugin plugIn;
  FakeHost host;
  EXPECT_EQ(plugIn.PDEPanelsForType("", &host), std::nullopt);
  EXPECT_EQ(plugIn.PDEPanelsForType("bdb091f4-e57f-11d3-b5cc-0050e4603277", &host), std::nullopt);
  EXPECT_EQ(plugIn.PDEPanelsForType("BDB091F4-E57F-11D3-B5CC-0050E4603278", &host), std::nullopt);
  EXPECT_TRUE(host.asked.empty());
}

TEST(TavrinPDEPlugin, MakesNothingWhenThePanelCannotBeMade) {
  TavrinPDEPlugin plugIn;
  EXPECT_EQ(plugIn.PDEPanelsForType(kPrintDialogPanelType, nullptr), std::nullopt);
}

}  // namespace
}  // namespace tavrin
