#include "host/pages/ResultPage.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "host/task/PrintTask.h"
#include "tests/fakes/FakePPD.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

constexpr int kPatience = 20'000;  // milliseconds, on a machine that has much to do

class ResultPageTest : public testing::Test {
 protected:
  JobRequest request() const {
    JobRequest card;
    card.document = place.write("card.pdf", "%PDF-1.4 a card");
    card.title = "Card";
    card.copies = 3;
    return card;
  }
  void printIntoAFolder() {
    task.usePrinterWithoutQueue(officePPD(), place.path() / "jobs");
    task.print();
    ASSERT_TRUE(QTest::qWaitFor([this] { return task.arrived() != nullptr; }, kPatience));
  }
  static QStringList rows(const QWidget& page) {
    QStringList texts;
    const auto* form = page.findChild<QFormLayout*>();
    for (int row = 0; row < form->rowCount(); ++row) {
      QString line;
      for (const auto role : {QFormLayout::LabelRole, QFormLayout::FieldRole})
        line += qobject_cast<QLabel*>(form->itemAt(row, role)->widget())->text() + " ";
      texts << line.trimmed();
    }
    return texts;
  }

  test::TemporaryFolder place;
  PrintTask task{request()};
};

TEST_F(ResultPageTest, SaysWhereTheJobIsAndWhatItWas) {
  printIntoAFolder();
  const ResultPage page(task, nullptr);
  EXPECT_EQ(page.findChild<QLabel*>("resultHeadline")->text(), "The job is in the folder");
  EXPECT_EQ(page.findChild<QLabel*>("resultText")->text().toStdString(),
            "The job is in the folder " + (place.path() / "jobs" / "Card").string() + ".");
  EXPECT_EQ(rows(page).join("; ").toStdString(),
            "Document: Card; Contents: 3 copies of all pages, on A4 Sheet; Printer: " +
                task.printerName());
}

TEST_F(ResultPageTest, SaysHowManyDocumentsItWas) {
  task.addDocuments({place.write("letter.txt", "Dear Ada")});
  printIntoAFolder();
  const ResultPage page(task, nullptr);
  EXPECT_EQ(rows(page).front(), "Documents: 2 documents");
  const auto* form = page.findChild<QFormLayout*>();
  const QString toolTip = form->itemAt(0, QFormLayout::FieldRole)->widget()->toolTip();
  EXPECT_TRUE(toolTip.contains("card.pdf\nletter.txt")) << toolTip.toStdString();
}

TEST_F(ResultPageTest, OpensTheFolderOfTheJob) {
  printIntoAFolder();
  QUrl opened;
  const auto open = [&](const QUrl& url) {
    opened = url;
    return true;
  };
  const ResultPage page(task, open, nullptr);
  page.findChild<QPushButton*>("openFolder")->click();
  EXPECT_EQ(opened.toLocalFile().toStdString(), (place.path() / "jobs" / "Card").string());
  EXPECT_EQ(task.notice().text, "");
}

TEST_F(ResultPageTest, SaysWhereTheFolderIsWhenItCannotBeOpened) {
  printIntoAFolder();
  const ResultPage page(
      task, [](const QUrl&) { return false; }, nullptr);
  page.findChild<QPushButton*>("openFolder")->click();
  EXPECT_EQ(task.notice().text,
            "No program on this computer shows folders. The job is in the folder " +
                (place.path() / "jobs" / "Card").string() + ".");
}

}  // namespace
}  // namespace tavrin
