#include "host/general/PrinterPopUp.h"

#include <QTest>
#include <gtest/gtest.h>

#include "host/general/PrinterItems.h"
#include "host/task/PrintTask.h"
#include "tests/servers/PrivateCupsd.h"

namespace tavrin {
namespace {

constexpr int kPatience = 20'000;  // milliseconds, on a machine that has much to do

class PrinterPopUpTest : public testing::Test {
 protected:
  // The rows of the list, once the printers are there.
  QStringList rows() {
    task.usePrintServer();
    EXPECT_TRUE(QTest::qWaitFor([&] { return popUp.count() > 1; }, kPatience));
    QStringList all;
    for (int i = 0; i < popUp.count(); ++i)
      all << popUp.itemText(i) + ": " + popUp.itemData(i, PrinterItems::kDetails).toString();
    return all;
  }

  PrivateCupsd cups;
  PrintTask task{{}};
  PrinterPopUp popUp{task, nullptr};
};

TEST_F(PrinterPopUpTest, ShowsPrintersAsPeopleKnowThem) {
  cups.addPlainQueue("tav");
  cups.run({"lpadmin", "-p", "tav", "-D", "Photo printer", "-L", "Study"});
  cups.run({"lpoptions", "-p", "tav/iron", "-o", "MediaType=IronOn"});
  EXPECT_EQ(rows(), (QStringList{"Photo printer: tav · Study · Ready",
                                 "Photo printer (iron): tav · Study · Ready",
                                 "Save as PDF: A file instead of paper"}));
  EXPECT_EQ(popUp.itemData(0, Qt::AccessibleTextRole), "Photo printer, tav · Study · Ready");
  EXPECT_EQ(popUp.accessibleDescription(), "tav · Study · Ready");
}

TEST_F(PrinterPopUpTest, OffersAPDFWithoutAnyPrinter) {
  EXPECT_EQ(popUp.currentIndex(), -1);
  emit popUp.activated(0);
  EXPECT_EQ(task.target(), PrintTask::Target::file);
  EXPECT_EQ(popUp.currentText(), "Save as PDF");
  EXPECT_TRUE(task.canPrint());
}

TEST_F(PrinterPopUpTest, TellsNamesakesApart) {
  for (const char* queue : {"hall", "tav"}) {
    cups.addPlainQueue(queue);
    cups.run({"lpadmin", "-p", queue, "-D", "Tavrin R420"});
  }
  rows();
  EXPECT_EQ(popUp.itemText(0), "Tavrin R420 (hall)");
  EXPECT_EQ(popUp.itemText(1), "Tavrin R420 (tav)");
}

}  // namespace
}  // namespace tavrin
