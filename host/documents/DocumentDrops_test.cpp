#include "host/documents/DocumentDrops.h"

#include <QDialog>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

#include "host/task/PrintTask.h"
#include "platform/qt/base/MakeChild.h"
#include "tests/fakes/FakePPD.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 20'000;  // milliseconds, on a machine that has much to do

// A window all of which is a field for texts, which would take dropped names.
class DocumentDropsTest : public testing::Test {
 protected:
  DocumentDropsTest() {
    edit.setGeometry(window.rect());
    makeChild<DocumentDrops>(task, window);
    window.show();
  }
  JobRequest request() const {
    JobRequest job;
    job.document = place.write("card.pdf", "%PDF-1.4 a card");
    return job;
  }
  void drag(const fs::path& path) {
    const QString name = QString::fromStdString(path.string());
    files.setUrls({QUrl::fromLocalFile(name)});
    files.setText(name);
  }
  // As the system tells the window; whether it takes what is dragged.
  bool enter() {
    QDragEnterEvent event(middle(), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(window.windowHandle(), &event);
    return event.isAccepted();
  }
  void leave() {
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(window.windowHandle(), &event);
  }
  void drop() {
    QDropEvent event(middle(), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.windowHandle(), &event);
    QCoreApplication::processEvents();
  }
  QPoint middle() const { return window.rect().center(); }
  bool hasSign() const { return window.findChild<QWidget*>("dropSign")->isVisible(); }

  test::TemporaryFolder place;
  PrintTask task{request()};
  QDialog window;
  QLineEdit edit{&window};
  QMimeData files;
};

TEST_F(DocumentDropsTest, AddsWhatIsDroppedWhereverOnTheWindow) {
  drag(place.write("more.txt", "more"));
  EXPECT_TRUE(enter());
  drop();
  ASSERT_EQ(task.documents().all().size(), 2u);
  EXPECT_EQ(task.documents().all().back().document, place.path() / "more.txt");
  EXPECT_EQ(task.notice().text, "“more.txt” was added.");
  EXPECT_EQ(edit.text(), "");
}

TEST_F(DocumentDropsTest, ShowsASignUntilTheDragIsOver) {
  drag(place.write("more.txt", "more"));
  EXPECT_FALSE(hasSign());
  enter();
  EXPECT_TRUE(hasSign());
  leave();
  EXPECT_FALSE(hasSign());
  enter();
  drop();
  EXPECT_FALSE(hasSign());
}

TEST_F(DocumentDropsTest, LeavesATextToItsField) {
  files.setText("1-3");
  enter();
  EXPECT_FALSE(hasSign());
  drop();
  EXPECT_EQ(edit.text(), "1-3");
  EXPECT_EQ(task.documents().all().size(), 1u);
}

TEST_F(DocumentDropsTest, TakesNothingOnceTheJobArrived) {
  task.usePrinterWithoutQueue(officePPD(), place.path() / "jobs");
  task.print();
  ASSERT_TRUE(QTest::qWaitFor([this] { return task.arrived() != nullptr; }, kPatience));
  drag(place.write("more.txt", "more"));
  enter();
  EXPECT_FALSE(hasSign());
  drop();
  EXPECT_EQ(task.documents().all().size(), 1u);
}

TEST_F(DocumentDropsTest, TakesNothingBehindAnotherWindow) {
  QDialog question(&window);
  question.open();
  drag(place.write("more.txt", "more"));
  enter();
  EXPECT_FALSE(hasSign());
}

}  // namespace
}  // namespace tavrin
