#include "host/program/ProblemWindow.h"

#include <QAbstractButton>
#include <QTest>
#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(ProblemWindow, SaysTheSentenceAsItIs) {
  const ProblemWindow window("The document \"<b>card</b>.pdf\" is empty.");
  EXPECT_EQ(window.text(), "The document “<b>card</b>.pdf” is empty.");
  EXPECT_EQ(window.textFormat(), Qt::PlainText);
}

TEST(ProblemWindow, CanOnlyBeClosed) {
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    ProblemWindow window("The document is empty.");
    ASSERT_EQ(window.buttons().size(), 1);
    EXPECT_EQ(window.buttons().front()->text(), "&Close");
    window.show();
    QTest::keyClick(&window, key);
    EXPECT_FALSE(window.isVisible());
  }
}

}  // namespace
}  // namespace tavrin
