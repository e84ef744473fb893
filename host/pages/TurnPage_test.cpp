#include "host/pages/TurnPage.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

#include "host/pages/TurnPicture.h"
#include "tests/fakes/FakePDF.h"
#include "tests/fakes/FakePPD.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

using Edge = TurnPicture::Edge;

constexpr int kPatience = 20'000;  // milliseconds, on a machine that has much to do

class TurnPageTest : public testing::Test {
 protected:
  JobRequest request(const std::string& sides) const {
    JobRequest job;
    job.document = place.write("card.pdf", numberedPDF(2));
    job.options = {{"sides", sides}};
    return job;
  }
  void printFronts(PrintTask& task) const {
    task.usePrinterWithoutQueue(makePPD({pageSizeOption()}), place.path() / "jobs");
    task.print();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return task.stage() == PrintTask::Stage::turning; }, kPatience));
  }
  static QString words(const QWidget& page) { return page.accessibleName(); }

  test::TemporaryFolder place;
};

TEST_F(TurnPageTest, SaysWhichEdgeTheStackIsTurnedAlong) {
  for (const auto& [sides, edge] : {std::pair{"two-sided-long-edge", "along its long edge"},
                                    std::pair{"two-sided-short-edge", "along its short edge"}}) {
    PrintTask task(request(sides));
    printFronts(task);
    TurnPage page(task, nullptr);
    page.show();
    EXPECT_TRUE(words(page).contains(edge)) << words(page).toStdString();
  }
}

TEST_F(TurnPageTest, SaysWhichOfSeveralDocumentsItIs) {
  PrintTask task(request("two-sided-long-edge"));
  task.addDocuments({place.write("more.pdf", numberedPDF(2))});
  printFronts(task);
  TurnPage page(task, nullptr);
  page.show();
  EXPECT_TRUE(words(page).contains("Document 1 of 2: “card.pdf”")) << words(page).toStdString();
}

TEST_F(TurnPageTest, IsAboutNoDocumentInParticularWhereThereIsOne) {
  PrintTask task(request("two-sided-long-edge"));
  printFronts(task);
  TurnPage page(task, nullptr);
  page.show();
  EXPECT_FALSE(words(page).contains("Document")) << words(page).toStdString();
}

TEST_F(TurnPageTest, LetsTheBacksComeTheOtherWayRound) {
  PrintTask task(request("two-sided-long-edge"));
  printFronts(task);
  const TurnPage page(task, nullptr);
  EXPECT_EQ(page.backOrder(), JobSequence::BackOrder::same);
  page.findChild<QCheckBox*>("backsReversed")->click();
  EXPECT_EQ(page.backOrder(), JobSequence::BackOrder::reversed);
}

// The picture, in black and white.
QImage drawn(Edge edge, const QSizeF& paper) {
  TurnPicture picture(nullptr);
  picture.setTurn(edge, paper);
  picture.resize(440, 200);
  return picture.grab().toImage();
}

TEST(TurnPicture, ShowsTheEdgeThatTheStackIsTurnedAlong) {
  const QSizeF portrait(210, 297);
  EXPECT_NE(drawn(Edge::longer, portrait), drawn(Edge::shorter, portrait));
}

// The head of the printed page: its place on the blank side is in the right half of the picture.
int darkBelow(const QImage& picture) {
  int dark = 0;
  for (int y = picture.height() / 2; y < picture.height(); ++y)
    for (int x = picture.width() * 3 / 4 - 30; x < picture.width() * 3 / 4 + 20; ++x)
      dark += qGray(picture.pixel(x, y)) < 128;
  return dark;
}

TEST(TurnPicture, ShowsWhereTheTopOfThePageComesTo) {
  const QSizeF portrait(210, 297);
  EXPECT_GT(darkBelow(drawn(Edge::shorter, portrait)), darkBelow(drawn(Edge::longer, portrait)));
}

TEST(TurnPicture, KnowsTheLongerEdgeOfWidePaper) {
  const QSizeF landscape(297, 210);
  EXPECT_GT(darkBelow(drawn(Edge::longer, landscape)), darkBelow(drawn(Edge::shorter, landscape)));
}

}  // namespace
}  // namespace tavrin
