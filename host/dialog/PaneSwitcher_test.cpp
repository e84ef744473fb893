#include "host/dialog/PaneSwitcher.h"

#include <QLineEdit>
#include <QTabBar>
#include <QTest>
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

class PaneSwitcherTest : public testing::Test {
 protected:
  PaneSwitcherTest() { switcher.setPanes({&first, &second}, "Second"); }

  PaneSwitcher switcher{nullptr};
  StubPane first{"First", &switcher};
  StubPane second{"Second", &switcher};
  QTabBar* tabs = switcher.findChild<QTabBar*>("panes");
};

TEST_F(PaneSwitcherTest, StaysWhereAPaneRefusesToBeLeft) {
  EXPECT_EQ(switcher.current(), &second);
  EXPECT_EQ(second.shows, 1);
  second.mayLeave = false;
  tabs->setCurrentIndex(0);
  EXPECT_EQ(switcher.current(), &second);
  EXPECT_EQ(tabs->currentIndex(), 1);
  second.mayLeave = true;
  tabs->setCurrentIndex(0);
  EXPECT_EQ(switcher.current(), &first);
  EXPECT_TRUE(second.isHidden());
}

TEST_F(PaneSwitcherTest, TurnsByKeysFromAnywhere) {
  QLineEdit edit(&second);
  switcher.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&switcher));
  edit.setFocus();
  QTest::keyClick(&edit, Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(switcher.current(), &first) << "the first one comes after the last one";
  EXPECT_EQ(switcher.focusWidget(), tabs) << "what had the focus is gone";
  QTest::keyClick(tabs, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(switcher.current(), &second);
  QTest::keyClick(tabs, Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(switcher.current(), &first);
  QTest::keyClick(tabs, Qt::Key_Right);
  EXPECT_EQ(switcher.current(), &second);
}

TEST_F(PaneSwitcherTest, TellsNamesThatAreCutOff) {
  switcher.resize(tabs->sizeHint().width(), 200);
  switcher.show();
  EXPECT_EQ(tabs->tabToolTip(0), "");
  switcher.resize(tabs->sizeHint().width() - 10, 200);
  EXPECT_TRUE(tabs->tabToolTip(0).contains("First"));
}

TEST_F(PaneSwitcherTest, NamesItsPanesForAScreenReader) {
  EXPECT_EQ(tabs->accessibleName(), "Settings to show");
  EXPECT_EQ(second.accessibleName(), "Second");
}

}  // namespace
}  // namespace tavrin
