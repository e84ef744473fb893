#include "host/general/PaperSizeBoxes.h"

#include <QDoubleSpinBox>
#include <gtest/gtest.h>

#include "host/printer/PPDMarks.h"
#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

class PaperSizeBoxesTest : public testing::Test {
 protected:
  ~PaperSizeBoxesTest() override { QLocale::setDefault(QLocale::system()); }

  // Boxes as people in that country have them.
  void makeBoxes(const char* country) {
    QLocale::setDefault(QLocale(country));
    boxes = std::make_unique<PaperSizeBoxes>(marks, nullptr);
  }
  QDoubleSpinBox* box(const char* name) const { return boxes->findChild<QDoubleSpinBox*>(name); }

  PPDPtr ppd = makePPD({pageSizeOption()}, customPaperAttributes());
  PPDMarks marks{*ppd};
  std::unique_ptr<PaperSizeBoxes> boxes;
};

TEST_F(PaperSizeBoxesTest, MeasureAsPeopleDo) {
  marks.choose("PageSize", "Custom.4x6in");
  makeBoxes("de_DE");
  EXPECT_EQ(boxes->summary(), "101,6 mm × 152,4 mm");
  makeBoxes("en_US");
  EXPECT_EQ(boxes->summary(), "4.00 in × 6.00 in");
}

TEST_F(PaperSizeBoxesTest, MarkWhatThePersonAsksFor) {
  makeBoxes("de_DE");
  marks.choose("PageSize", "Custom.10x10cm");
  box("paperHeight")->setValue(150);
  EXPECT_EQ(markedCustomPaper(*ppd), "Custom.100x150mm");
}

TEST_F(PaperSizeBoxesTest, KeepToWhatThePrinterTakes) {
  makeBoxes("de_DE");
  EXPECT_NEAR(box("paperWidth")->minimum(), 12.7, 0.01);
  EXPECT_NEAR(box("paperWidth")->maximum(), 352.7, 0.01);
  marks.choose("PageSize", "Custom.50x50cm");
  EXPECT_EQ(box("paperWidth")->value(), 500) << "it was given by somebody else";
}

TEST_F(PaperSizeBoxesTest, BeginWithThePaperThatIsThere) {
  ppdPageSize(ppd.get(), "A4")->width = 595;
  ppdPageSize(ppd.get(), "A4")->length = 842;
  makeBoxes("de_DE");
  boxes->begin();
  EXPECT_EQ(marks.choice("PageSize"), "Custom");
  EXPECT_EQ(markedCustomPaper(*ppd), "Custom.209.9x297mm") << "as the boxes say it";
}

}  // namespace
}  // namespace tavrin
