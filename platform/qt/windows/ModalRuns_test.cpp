#include "platform/qt/windows/ModalRuns.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

#include "platform/qt/base/WidgetProperties.h"
#include "tests/fixtures/TestWindows.h"

namespace tavrin {
namespace {

using Strings = std::vector<std::string>;

class ModalRunsTest : public testing::Test {
 protected:
  void SetUp() override {
    windows.fill();
    windows.windowWillClose = [this] { toolkit.stopModal(); };
  }
  void TearDown() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  Window& window(const char* name) { return *windows.windows[name]; }

  bool show(Window& shown) {
    shown.center();
    shown.display();
    return toolkit.runModalForWindow(shown);
  }
  // What the user does when a window comes up.
  void whenUp(std::function<void(QWidget&)> user) {
    toolkit.onModalWindow([user](QWidget& shown) {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&shown));
      user(shown);
    });
  }

  static QWidget* part(QWidget& of, const char* name) {
    return of.findChild<QWidget*>(QLatin1String(name));
  }

  QtToolkit toolkit;
  TestWindows windows{toolkit};
};

TEST_F(ModalRunsTest, OkEndsTheRun) {
  windows.duringAction = [&](const std::string& selector) {
    if (selector != "clickOkButton_MsgOne:") return;
    toolkit.stopModal();
    window("ibMsgOneWindow").close();
  };
  whenUp([&](QWidget& shown) {
    EXPECT_EQ(shown.objectName(), "ibMsgOneWindow");
    EXPECT_EQ(shown.windowModality(), Qt::ApplicationModal);
    QTest::keyClick(&shown, Qt::Key_Return);
  });
  EXPECT_TRUE(show(window("ibMsgOneWindow")));
  EXPECT_EQ(windows.ran, (Strings{"clickOkButton_MsgOne:", "windowWillClose:"}));
}

TEST_F(ModalRunsTest, ArrowKeysAndCaptionsChoose) {
  whenUp([&](QWidget& shown) {
    auto* first = qobject_cast<QRadioButton*>(part(shown, "ibFirstButton_MsgOne"));
    EXPECT_EQ(first->accessibleName(), "Paper Type: Iron-On Transfer, Print Quality: Normal");
    QTest::keyClick(first, Qt::Key_Down);
    QTest::mouseClick(part(shown, "ibLabelA_ThirdButton_MsgOne"), Qt::LeftButton);
    EXPECT_EQ(windows.buttons["ibThirdButton_MsgOne"]->intValue(), 1);
    shown.close();
  });
  EXPECT_TRUE(show(window("ibMsgOneWindow")));
  EXPECT_EQ(windows.ran,
            (Strings{"clickSecondButton_MsgOne:", "clickThirdButton_MsgOne:", "windowWillClose:"}));
}

TEST_F(ModalRunsTest, EscapeAndTheWindowManagerClose) {
  whenUp([](QWidget& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
  EXPECT_TRUE(show(window("ibMsgTwoWindow")));
  whenUp([](QWidget& shown) { shown.close(); });
  EXPECT_TRUE(show(window("ibMsgTwoWindow")));
  EXPECT_EQ(windows.ran, (Strings{"windowWillClose:", "windowWillClose:"}));
}

TEST_F(ModalRunsTest, AWindowMayCloseItselfInItsOwnHandler) {
  windows.windowWillClose = [&] {
    toolkit.stopModal();
    window("ibMsgTwoWindow").close();
  };
  whenUp([](QWidget& shown) { shown.close(); });
  EXPECT_TRUE(show(window("ibMsgTwoWindow")));
  window("ibMsgTwoWindow").close();
  EXPECT_EQ(windows.ran, Strings{"windowWillClose:"});
}

TEST_F(ModalRunsTest, StoppingTwiceIsHarmless) {
  toolkit.stopModal();
  whenUp([&](QWidget&) {
    toolkit.stopModal();
    toolkit.stopModal();
  });
  EXPECT_TRUE(show(window("ibMsgOneWindow")));
  toolkit.stopModal();
}

TEST_F(ModalRunsTest, ARunInsideARun) {
  Strings order;
  whenUp([&](QWidget& shown) {
    order.push_back(shown.objectName().toStdString());
    if (shown.objectName() == "ibInstructionWindow") return void(shown.close());
    toolkit.stopModal();
    window("ibMsgFiveWindow").close();
    EXPECT_TRUE(show(window("ibInstructionWindow")));
    order.push_back("back");
  });
  EXPECT_TRUE(show(window("ibMsgFiveWindow")));
  EXPECT_EQ(order, (Strings{"ibMsgFiveWindow", "ibInstructionWindow", "back"}));
}

// An OK handler stops the run and closes the window, whose delegate stops once more.
TEST_F(ModalRunsTest, StoppingTwiceDoesNotStopTheRunAround) {
  int loopsAround = 0;
  whenUp([&](QWidget& shown) {
    if (shown.objectName() == "ibMsgTwoWindow") {
      toolkit.stopModal();
      window("ibMsgTwoWindow").close();
      return;
    }
    EXPECT_TRUE(show(window("ibMsgTwoWindow")));
    // Handled only by a run that goes on.
    QTimer::singleShot(0, &shown, [&] {
      ++loopsAround;
      toolkit.stopModal();
    });
  });
  EXPECT_TRUE(show(window("ibMsgOneWindow")));
  EXPECT_EQ(loopsAround, 1);
}

// Two windows that take turns must not become each other's parent.
TEST_F(ModalRunsTest, AClosedWindowIsNobodysParent) {
  whenUp([](QWidget& shown) { shown.close(); });
  for (const char* name : {"ibMsgFiveWindow", "ibInstructionWindow", "ibMsgFiveWindow"}) {
    EXPECT_TRUE(show(window(name)));
    QWidget* closed = nullptr;
    for (QWidget* top : QApplication::topLevelWidgets())
      if (top->objectName() == QLatin1String(name)) closed = top;
    ASSERT_NE(closed, nullptr);
    EXPECT_EQ(closed->windowHandle()->transientParent(), nullptr);
  }
}

TEST_F(ModalRunsTest, AWindowWithoutADelegateDoesNotRunForEver) {
  windows.windowWillClose = nullptr;
  whenUp([](QWidget& shown) { shown.close(); });
  EXPECT_FALSE(show(window("ibMsgOneWindow")));
}

TEST_F(ModalRunsTest, TheInterfaceMayBeDroppedWhileItsWindowIsUp) {
  QPointer<QWidget> watched;
  Window& shown = window("ibMsgOneWindow");
  whenUp([&](QWidget& widget) {
    watched = &widget;
    windows.interface.reset();
  });
  EXPECT_FALSE(show(shown));
  EXPECT_EQ(windows.ran, Strings{});
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(watched.isNull());
}

TEST_F(ModalRunsTest, TheInterfaceMayBeDroppedByItsOwnDelegate) {
  windows.windowWillClose = [&] {
    toolkit.stopModal();
    windows.interface.reset();
  };
  whenUp([](QWidget& shown) { shown.close(); });
  EXPECT_TRUE(show(window("ibMsgOneWindow")));
}

TEST_F(ModalRunsTest, QuittingEndsEveryRunUnanswered) {
  bool inner = true;
  bool again = true;
  bool outer = true;
  whenUp([&](QWidget& shown) {
    if (shown.objectName() == "ibMsgTwoWindow") return QCoreApplication::quit();
    inner = show(window("ibMsgTwoWindow"));
    again = show(window("ibMsgFiveWindow"));
  });
  QTimer::singleShot(0, [&] { outer = show(window("ibMsgOneWindow")); });
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_FALSE(inner);
  EXPECT_FALSE(again);
  EXPECT_FALSE(outer);
}

TEST_F(ModalRunsTest, LeavingEndsEveryRunUnanswered) {
  bool inner = true;
  bool outer = true;
  whenUp([&](QWidget& shown) {
    if (shown.objectName() == "ibMsgTwoWindow") return QCoreApplication::exit(3);
    inner = show(window("ibMsgTwoWindow"));
  });
  QTimer::singleShot(0, [&] { outer = show(window("ibMsgOneWindow")); });
  EXPECT_EQ(QCoreApplication::exec(), 3);
  EXPECT_FALSE(inner);
  EXPECT_FALSE(outer);
}

TEST_F(ModalRunsTest, AWindowComesUpInTheMiddleOfTheWindowThatItCovers) {
  QWidget host;
  host.setGeometry(100, 100, 600, 500);
  host.show();
  host.activateWindow();
  whenUp([&](QWidget& shown) {
    const QPoint offset = shown.geometry().center() - host.geometry().center();
    EXPECT_LE(offset.manhattanLength(), 4);
    EXPECT_FALSE(shown.accessibleDescription().isEmpty());
    shown.close();
  });
  show(window("ibMsgOneWindow"));
}

TEST_F(ModalRunsTest, AWarningSignStandsBesideTheTexts) {
  for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    whenUp([&](QWidget& shown) {
      shown.setLayoutDirection(direction);
      shown.layout()->activate();
      const auto* sign = qobject_cast<QLabel*>(part(shown, "warningSign_MsgOne"));
      const QSize size = sign->pixmap(Qt::ReturnByValue).deviceIndependentSize().toSize();
      EXPECT_GT(size.height(), 2 * shown.fontMetrics().height());
      EXPECT_EQ(sign->height(), size.height());
      const QRect text = part(shown, "scroll_MsgOne")->geometry();
      EXPECT_TRUE(direction == Qt::LeftToRight ? sign->geometry().right() < text.left()
                                               : sign->geometry().left() > text.right());
      EXPECT_NEAR(sign->y(), text.top(), 1);
      shown.close();
    });
    EXPECT_TRUE(show(window("ibMsgOneWindow")));
  }
}

TEST_F(ModalRunsTest, NoTextIsClipped) {
  whenUp([&](QWidget& shown) {
    QCoreApplication::processEvents();
    for (const QLabel* label : shown.findChildren<QLabel*>()) {
      if (label->text().isEmpty()) continue;
      const std::string name = label->objectName().toStdString();
      EXPECT_EQ(label->visibleRegion().boundingRect(), label->rect()) << name;
      EXPECT_GE(label->height(), label->heightForWidth(label->width())) << name;
    }
    shown.close();
  });
  for (const char* suffix : {"", " and a good deal more of the same, as some languages need it"}) {
    windows.fill(suffix);
    for (const char* name : {"ibMsgOneWindow", "ibMsgTwoWindow", "ibMsgFiveWindow"})
      EXPECT_TRUE(show(window(name)));
  }
}

TEST_F(ModalRunsTest, AMonstrousTextStaysOnTheScreen) {
  const std::string megabyte(1024 * 1024, 'x');
  windows.labels["ibInstructionText"]->setStringValue(megabyte);
  windows.labels["ibLabelA_MsgOne"]->setStringValue(megabyte);
  window("ibMsgOneWindow").setTitle(megabyte);
  whenUp([&](QWidget& shown) {
    QCoreApplication::processEvents();
    EXPECT_TRUE(shown.screen()->availableGeometry().contains(shown.geometry()));
    EXPECT_TRUE(!part(shown, "ibOkButton_MsgOne") ||
                part(shown, "ibOkButton_MsgOne")->visibleRegion().boundingRect().isValid());
    shown.close();
  });
  EXPECT_TRUE(show(window("ibInstructionWindow")));
  EXPECT_TRUE(show(window("ibMsgOneWindow")));
}

}  // namespace
}  // namespace tavrin
