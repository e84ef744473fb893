#include "host/dialog/PaneSwitcher.h"

#include <QComboBox>
#include <gtest/gtest.h>

namespace tavrin {
namespace {

// A pane that notes when it is shown, and can refuse to be left.
class StubPane final : public Pane {
 public:
  using Pane::Pane;
  Lines summary() const override { return {}; }
  void willShow() override { ++shows; }
  bool shouldHide() override { return mayLeave; }

  int shows = 0;
  bool mayLeave = true;
};

TEST(PaneSwitcher, StaysWhereAPaneRefusesToBeLeft) {
  PaneSwitcher switcher(nullptr);
  StubPane first("First", &switcher);
  StubPane second("Second", &switcher);
  switcher.setPanes({&first, &second}, "Second");
  EXPECT_EQ(switcher.current(), &second);
  EXPECT_EQ(second.shows, 1);
  auto* popUp = switcher.findChild<QComboBox*>("panes");
  second.mayLeave = false;
  popUp->setCurrentIndex(0);
  EXPECT_EQ(switcher.current(), &second);
  EXPECT_EQ(popUp->currentText(), "Second");
  second.mayLeave = true;
  popUp->setCurrentIndex(0);
  EXPECT_EQ(switcher.current(), &first);
  EXPECT_TRUE(second.isHidden());
}

}  // namespace
}  // namespace tavrin
