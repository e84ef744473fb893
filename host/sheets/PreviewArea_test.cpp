#include "host/sheets/PreviewArea.h"

#include <QDialog>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "host/sheets/SheetView.h"
#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/SeenDocuments.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 20'000;  // milliseconds

class PreviewAreaTest : public testing::Test {
 protected:
  PreviewAreaTest() {
    area.resize(300, 420);
    area.QWidget::show();
  }
  Preparation job(const OptionList& options = {}) {
    if (!seen || seen->facts().front().document != document) seen.emplace(std::vector{document});
    return test::preparationFor(seen->facts(), fs::path(SAMPLE_PRINTERS) / "tavrin-r420.ppd",
                                options);
  }
  void show(const OptionList& options = {}) { area.show(job(options)); }
  std::string spoken() { return view->accessibleName().toStdString(); }
  bool speaks(const char* text) {
    return QTest::qWaitFor([&] { return spoken() == text; }, kPatience);
  }
  // What the view shows once that is something else.
  QImage shownAfter(const QImage& before) {
    QImage now;
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return (now = view->grab().toImage()) != before; }, kPatience));
    return now;
  }
  void press(Qt::Key key) { QTest::keyClick(view, key); }
  void turnWheel(int notches) {
    QWheelEvent event(QPointF(50, 50), view->mapToGlobal(QPointF(50, 50)), {}, {0, 120 * notches},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view, &event);
  }

  test::TemporaryFolder place;
  fs::path document = place.write("pages.pdf", numberedPDF(5));
  std::optional<test::SeenDocuments> seen;
  PreviewArea area{nullptr};
  SheetView* view = area.findChild<SheetView*>();
  QSpinBox* number = area.findChild<QSpinBox*>("sheet");
};

TEST_F(PreviewAreaTest, ShowsThePapersShapeBeforeAnythingElse) {
  const QImage desk = view->grab().toImage();
  Preparation panorama = job();
  panorama.paper = {QSizeF(300, 100), {}};
  area.show(panorama);
  EXPECT_NE(view->grab().toImage(), desk);
  EXPECT_EQ(spoken(), "Preparing the preview…");
}

TEST_F(PreviewAreaTest, SaysWhichSheetIsShown) {
  show({{"number-up", "2"}, {"Mirror", "True"}});
  EXPECT_TRUE(speaks("Sheet 1 of 3: pages 1 and 2, mirrored")) << spoken();
  EXPECT_EQ(number->text().toStdString(), "Sheet 1 of 3");
}

TEST_F(PreviewAreaTest, TurnsByKeysByWheelAndByNumber) {
  show();
  ASSERT_TRUE(speaks("Sheet 1 of 5: page 1")) << spoken();
  press(Qt::Key_PageDown);
  EXPECT_EQ(spoken(), "Sheet 2 of 5: page 2");
  press(Qt::Key_End);
  EXPECT_EQ(area.current(), 4);
  press(Qt::Key_PageDown);
  EXPECT_EQ(area.current(), 4);
  press(Qt::Key_Home);
  EXPECT_EQ(area.current(), 0);
  turnWheel(-1);
  EXPECT_EQ(area.current(), 1);
  number->setValue(4);
  EXPECT_EQ(area.current(), 3);
}

TEST_F(PreviewAreaTest, ReturnInTheNumberTurnsAndDoesNothingElse) {
  QDialog dialog;
  area.setParent(&dialog);
  QPushButton print(&dialog);
  print.setDefault(true);
  QSignalSpy printed(&print, &QPushButton::clicked);
  dialog.show();
  area.QWidget::show();
  show();
  ASSERT_TRUE(speaks("Sheet 1 of 5: page 1")) << spoken();
  number->selectAll();
  QTest::keyClicks(number, "4");
  EXPECT_EQ(area.current(), 0);
  QTest::keyClick(number, Qt::Key_Return);
  EXPECT_EQ(area.current(), 3);
  EXPECT_EQ(printed.count(), 0);
  area.setParent(nullptr);
}

TEST_F(PreviewAreaTest, SaysTheSameOfTheSheetWhileTheJobIsSent) {
  const OptionList options{{"number-up", "2"}, {"Mirror", "True"}};
  show(options);
  ASSERT_TRUE(speaks("Sheet 1 of 3: pages 1 and 2, mirrored")) << spoken();
  area.pause();
  press(Qt::Key_PageDown);
  EXPECT_EQ(spoken(), "Sheet 2 of 3: pages 3 and 4, mirrored");
}

TEST_F(PreviewAreaTest, ADoubleClickShowsFullSizeAndTheMouseMovesTheSheet) {
  show();
  ASSERT_TRUE(speaks("Sheet 1 of 5: page 1"));
  QTest::mouseDClick(view, Qt::LeftButton);
  auto* bar = area.findChild<QScrollArea*>()->verticalScrollBar();
  ASSERT_TRUE(QTest::qWaitFor([&] { return bar->maximum() > 300; }));
  EXPECT_EQ(bar->value(), bar->maximum() / 2);
  QTest::mousePress(view, Qt::LeftButton, {}, QPoint(200, 200));
  QTest::mouseMove(view, QPoint(200, 150));
  EXPECT_EQ(bar->value(), bar->maximum() / 2 + 50);
}

TEST_F(PreviewAreaTest, DrawsTheSheetThatIsTurnedTo) {
  show();
  ASSERT_TRUE(speaks("Sheet 1 of 5: page 1"));
  const QImage first = shownAfter(view->grab().toImage());
  press(Qt::Key_PageDown);
  shownAfter(first);
}

TEST_F(PreviewAreaTest, KeepsTheSheetThatIsShownAsFarAsThereIsOne) {
  show();
  ASSERT_TRUE(speaks("Sheet 1 of 5: page 1"));
  area.turnTo(4);
  show({{"number-up", "4"}});
  EXPECT_TRUE(speaks("Sheet 2 of 2: page 5")) << spoken();
}

TEST_F(PreviewAreaTest, ZoomsToFullSizeAndBack) {
  show();
  ASSERT_TRUE(speaks("Sheet 1 of 5: page 1"));
  const QSize fitted = view->size();
  press(Qt::Key_Plus);
  press(Qt::Key_Plus);
  EXPECT_TRUE(QTest::qWaitFor([&] { return view->height() > 11 * view->logicalDpiY(); }));
  press(Qt::Key_0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return view->size() == fitted; }));
}

TEST_F(PreviewAreaTest, SaysWhatCannotBeDrawn) {
  document = place.write("program.ps", "%!PS\nshowpage\n");
  show();
  EXPECT_TRUE(speaks("There is no preview of this kind of document.")) << spoken();
  EXPECT_FALSE(number->isVisible());
}

TEST_F(PreviewAreaTest, DoesNotTurnToFormerSheetsBehindAMessage) {
  show();
  ASSERT_TRUE(speaks("Sheet 1 of 5: page 1"));
  show({{"page-ranges", "50"}});
  ASSERT_TRUE(
      speaks("“pages.pdf” has 5 pages, none of which is to be printed. Choose other pages."));
  const QImage before = view->grab().toImage();
  press(Qt::Key_PageDown);
  EXPECT_EQ(area.current(), 0);
  EXPECT_EQ(view->grab().toImage(), before);
}

TEST_F(PreviewAreaTest, SaysThatItWaitsForTheDocument) {
  area.wait();
  EXPECT_TRUE(speaks("Waiting for the document…")) << spoken();
}

TEST_F(PreviewAreaTest, MaySayThatThereIsNothingToShow) {
  show();
  area.showNothing("Nothing here.");
  EXPECT_EQ(spoken(), "Nothing here.");
}

}  // namespace
}  // namespace tavrin
