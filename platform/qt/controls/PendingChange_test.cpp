#include "platform/qt/controls/PendingChange.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>
#include <gtest/gtest.h>

#include "tests/fixtures/TestPanel.h"
#include "tests/fixtures/TestWindows.h"

namespace tavrin {
namespace {

using Strings = std::vector<std::string>;

// A window with a panel, and a field beside it.
class PendingChangeTest : public testing::Test {
 protected:
  void SetUp() override {
    panel.layOut(true);
    panel.fill(true, true);
    column.addWidget(&panel.widget());
    column.addWidget(&field);
    mnemonic.setBuddy(&field);
    column.addWidget(&mnemonic);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    paperType().setFocus();
  }
  void TearDown() override {
    if (panel.interface) panel.widget().setParent(nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  QComboBox& paperType() { return panel.find<QComboBox>("ibPaperType"); }
  void stepDown() { QTest::keyClick(&paperType(), Qt::Key_Down); }
  void clickBlackAndWhite() {
    const QPoint inBox = panel.find<QWidget>("ibBlackAndWhite").mapTo(&window, QPoint(8, 10));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, inBox);
  }

  // The action has a message window up, which the person closes.
  void letTheActionAsk() {
    windows.windowWillClose = [this] { toolkit.stopModal(); };
    panel.duringAction = [this](const auto&) {
      toolkit.runModalForWindow(*windows.windows["ibMsgOneWindow"]);
    };
    toolkit.onModalWindow([](QWidget& asking) { asking.close(); });
  }

  QtToolkit toolkit;
  QWidget window;
  QVBoxLayout column{&window};
  QLineEdit field;
  QLabel mnemonic{"&Field"};
  TestPanel panel{toolkit};
  TestWindows windows{toolkit};
};

TEST_F(PendingChangeTest, IsToldOnceThePersonHasStopped) {
  stepDown();
  QTest::keyClick(&paperType(), Qt::Key_G);
  stepDown();
  QTest::qWait(300);
  EXPECT_EQ(panel.ran, Strings{});
  EXPECT_EQ(panel.ibPaperType->titleOfSelectedItem(), "Iron-On Transfer");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !panel.ran.empty(); }, 2000));
  QTest::qWait(800);
  EXPECT_EQ(panel.ran, Strings{"paperTypeAction:"});
}

TEST_F(PendingChangeTest, IsToldBeforeAnyOtherKey) {
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
    panel.ran.clear();
    panel.ibPaperType->selectItemWithTitle("Automatic");
    paperType().hidePopup();
    paperType().setFocus();
    stepDown();
    QTest::keyClick(&paperType(), key);
    EXPECT_EQ(panel.ran, Strings{"paperTypeAction:"}) << key;
  }
}

TEST_F(PendingChangeTest, IsToldBeforeAMnemonic) {
  stepDown();
  QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
  EXPECT_EQ(panel.ran, Strings{"paperTypeAction:"});
  EXPECT_TRUE(field.hasFocus());
}

TEST_F(PendingChangeTest, IsToldBeforeAClick) {
  bool toldBefore = false;
  QObject::connect(&panel.find<QAbstractButton>("ibBlackAndWhite"), &QAbstractButton::pressed,
                   [&] { toldBefore = !panel.ran.empty(); });
  stepDown();
  clickBlackAndWhite();
  EXPECT_TRUE(toldBefore);
  EXPECT_EQ(panel.ran, (Strings{"paperTypeAction:", "blackAndWhiteAction:"}));
}

TEST_F(PendingChangeTest, IsToldWhenTheFocusOrTheWindowGoes) {
  stepDown();
  field.setFocus();
  QCoreApplication::processEvents();
  EXPECT_EQ(panel.ran.size(), 1u);
  paperType().setFocus();
  stepDown();
  window.hide();
  QCoreApplication::processEvents();
  EXPECT_EQ(panel.ran.size(), 2u);
}

TEST_F(PendingChangeTest, IsToldWhenTheProgramAsks) {
  stepDown();
  toolkit.settle();
  toolkit.settle();
  EXPECT_EQ(panel.ran, Strings{"paperTypeAction:"});
}

TEST_F(PendingChangeTest, OfOnePopUpIsToldBeforeThatOfAnother) {
  stepDown();
  QTest::keyClick(&panel.find<QComboBox>("ibPrintQuality"), Qt::Key_Down);
  EXPECT_EQ(panel.ran, Strings{"paperTypeAction:"});
}

TEST_F(PendingChangeTest, AWindowThatComesUpStopsWhatThePersonWasDoing) {
  letTheActionAsk();
  stepDown();
  clickBlackAndWhite();
  stepDown();
  QTest::keyClick(&paperType(), Qt::Key_Tab);
  EXPECT_EQ(window.focusWidget(), &paperType());
  stepDown();
  EXPECT_FALSE(window.close());
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(panel.ran, (Strings{"paperTypeAction:", "paperTypeAction:", "paperTypeAction:"}));
}

TEST_F(PendingChangeTest, IsNotToldAfterTheProgramChoseSomethingElse) {
  stepDown();
  panel.ibPaperType->selectItemWithTitle("Automatic");
  toolkit.settle();
  EXPECT_EQ(panel.ran, Strings{});
}

TEST_F(PendingChangeTest, IsNotToldOnceThePopUpIsGone) {
  stepDown();
  panel.interface.reset();
  toolkit.settle();
  EXPECT_EQ(panel.ran, Strings{});
}

TEST_F(PendingChangeTest, AChoiceFromTheListIsToldAtOnce) {
  paperType().showPopup();
  QTest::keyClick(paperType().view(), Qt::Key_Down);
  QTest::keyClick(paperType().view(), Qt::Key_Return);
  EXPECT_EQ(panel.ran, Strings{"paperTypeAction:"});
}

}  // namespace
}  // namespace tavrin
