#include "host/general/PrinterStateLine.h"

#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

#include "host/task/PrintTask.h"
#include "tests/fakes/FakePPD.h"
#include "tests/servers/PrivateCupsd.h"

namespace tavrin {
namespace {

constexpr int kPatience = 20'000;  // milliseconds, on a machine that has much to do

class PrinterStateLineTest : public testing::Test {
 protected:
  QString text() const { return line.findChild<QLabel*>("printerState")->text(); }
  QColor colorOn(const QColor& ground) {
    QPalette colors;
    colors.setColor(QPalette::Window, ground);
    line.setPalette(colors);
    return line.findChild<QLabel*>("printerState")->palette().color(QPalette::WindowText);
  }
  bool hasSign() const {
    for (const auto* label : line.findChildren<QLabel*>())
      if (label->objectName().isEmpty() && !label->isHidden()) return true;
    return false;
  }
  bool comesToSay(const QString& sentence) const {
    return QTest::qWaitFor([&] { return text() == sentence; }, kPatience);
  }

  PrintTask task{{}};
  PrinterStateLine line{task, nullptr};
};

TEST_F(PrinterStateLineTest, FollowsThePrinterWhileTheDialogIsOpen) {
  const PrivateCupsd cups;
  cups.addPlainQueue("tav");
  cups.run({"lpadmin", "-p", "tav", "-L", "Study"});
  const int height = line.sizeHint().height();
  EXPECT_EQ(text(), "");
  task.usePrintServer();
  EXPECT_TRUE(comesToSay("Ready · Study"));
  EXPECT_FALSE(hasSign());
  cups.stopQueue("tav");
  EXPECT_TRUE(comesToSay("Stopped. Jobs will wait. · Study"));
  EXPECT_TRUE(hasSign());
  EXPECT_TRUE(task.canPrint()) << "the job waits";
  EXPECT_EQ(line.sizeHint().height(), height) << "nothing around it moves";
  for (const QColor& ground : {QColor(Qt::white), QColor(0x20, 0x20, 0x20)})
    EXPECT_GT(std::abs(colorOn(ground).lightness() - ground.lightness()), 100);
  cups.run({"lpadmin", "-x", "tav"});
  EXPECT_TRUE(comesToSay("There is no such printer any more."));
}

TEST_F(PrinterStateLineTest, NamesTheFolderOfAPrinterWithoutAQueue) {
  task.usePrinterWithoutQueue(makePPD({pageSizeOption()}), "/home/ada/Jobs/");
  EXPECT_EQ(text(), "Jobs go to the folder “Jobs”");
  EXPECT_TRUE(line.toolTip().contains("/home/ada/Jobs"));
  EXPECT_FALSE(hasSign());
}

}  // namespace
}  // namespace tavrin
