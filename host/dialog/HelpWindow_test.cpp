#include "host/dialog/HelpWindow.h"

#include <QAbstractButton>
#include <QTest>
#include <QTextBrowser>
#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(HelpWindow, ExplainsTheDialogFromTheLeft) {
  const HelpWindow window(nullptr);
  const QString text = window.findChild<QTextBrowser*>()->toPlainText();
  EXPECT_TRUE(text.startsWith("Preview\n")) << text.toStdString();
  for (const char* heading : {"Printer", "The tabs", "Summary"})
    EXPECT_TRUE(text.contains(QString("\n%1\n").arg(heading))) << heading;
}

TEST(HelpWindow, ClosesWithAButtonLikeAllOthers) {
  HelpWindow window(nullptr);
  window.show();
  auto* close = window.findChild<QAbstractButton*>();
  EXPECT_EQ(close->text(), "&Close");
  EXPECT_TRUE(close->icon().isNull());
  QTest::mouseClick(close, Qt::LeftButton);
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace tavrin
