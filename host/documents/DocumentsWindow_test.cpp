#include "host/documents/DocumentsWindow.h"

#include <QFileDialog>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include "host/documents/DocumentsRow.h"
#include "host/task/PrintTask.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

class DocumentsWindowTest : public testing::Test {
 protected:
  DocumentsWindowTest() {
    task.addDocuments({place.write("b.txt", "b"), place.write("c.txt", "c")});
    window.show();
  }
  JobRequest request() const {
    JobRequest job;
    job.document = place.write("a.txt", "a");
    return job;
  }
  QStringList shown() const {
    QStringList names;
    for (int row = 0; row < list->count(); ++row) names << list->item(row)->text();
    return names;
  }
  std::vector<std::string> printed() const {
    std::vector<std::string> names;
    for (const DocumentFacts& document : task.documents().all())
      names.push_back(document.document.filename().string());
    return names;
  }
  void select(const std::vector<int>& rows) {
    list->clearSelection();
    for (const int row : rows) list->item(row)->setSelected(true);
  }

  test::TemporaryFolder place;
  PrintTask task{request()};
  DocumentsWindow window{task, nullptr};
  QListWidget* list = window.findChild<QListWidget*>("documentList");
  QPushButton* remove = window.findChild<QPushButton*>("removeDocuments");
};

TEST_F(DocumentsWindowTest, ListsTheDocumentsInTheirOrder) {
  EXPECT_EQ(shown(), (QStringList{"a.txt", "b.txt", "c.txt"}));
  task.addDocuments({place.write("d.txt", "d")});
  EXPECT_EQ(shown().back(), "d.txt");
}

TEST_F(DocumentsWindowTest, TakesSomeOut) {
  select({0, 2});
  remove->click();
  EXPECT_EQ(shown(), QStringList{"b.txt"});
  EXPECT_EQ(printed(), std::vector<std::string>{"b.txt"});
}

TEST_F(DocumentsWindowTest, KeepsOne) {
  select({0, 1, 2});
  EXPECT_FALSE(remove->isEnabled());
  select({1, 2});
  EXPECT_TRUE(remove->isEnabled());
  remove->click();
  EXPECT_FALSE(remove->isEnabled());
}

TEST_F(DocumentsWindowTest, TheDeleteKeyTakesOneOutAndGoesToTheNext) {
  window.activateWindow();  // keys of a window work where it is the active one
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  list->setFocus();
  list->setCurrentRow(1, QItemSelectionModel::ClearAndSelect);
  QTest::keyClick(list, Qt::Key_Delete);
  EXPECT_EQ(printed(), (std::vector<std::string>{"a.txt", "c.txt"}));
  EXPECT_EQ(list->currentItem()->text(), "c.txt");
}

TEST_F(DocumentsWindowTest, AddsSome) {
  const auto more = QString::fromStdString(place.write("more.txt", "more").string());
  window.findChild<QPushButton*>("addDocuments")->click();
  auto* chooser = window.findChild<QFileDialog*>();
  ASSERT_NE(chooser, nullptr);
  emit chooser->urlsSelected({QUrl::fromLocalFile(more)});
  EXPECT_EQ(shown().back(), "more.txt");
}

TEST_F(DocumentsWindowTest, IsReachedFromARowThatComesWithTheSecondDocument) {
  task.removeDocument(2);
  task.removeDocument(1);
  QWidget around;
  DocumentsRow row(task, &around);
  around.show();
  EXPECT_FALSE(row.isVisible());
  task.addDocuments({place.write("more.txt", "more")});
  EXPECT_TRUE(row.isVisible());
  auto* button = row.findChild<QToolButton*>("documents");
  EXPECT_EQ(button->text(), "2 documents…");
  button->click();
  EXPECT_TRUE(row.findChild<DocumentsWindow*>()->isVisible());
}

}  // namespace
}  // namespace tavrin
