#include "host/prepare/SidePicker.h"

#include <gtest/gtest.h>

#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class SidePickerTest : public EventLoopTest {
 protected:
  // What can be read on the pages of the picked file, in their order; else why there is none.
  std::string picked(const fs::path& document, SidePicker::Side side) {
    PreparedDocument sheets{document, document, "application/pdf", {}};
    SidePicker picker(sheets, {QSizeF(612, 792), QMarginsF(20, 20, 20, 20)});
    std::string outcome;
    QObject::connect(&picker, &SidePicker::picked,
                     [&](const fs::path& file) { outcome = textOn(file); });
    QObject::connect(&picker, &SidePicker::failed,
                     [&](const QString& reason) { outcome = reason.toStdString(); });
    picker.start(side);
    EXPECT_TRUE(eventually([&] { return !outcome.empty(); }));
    return outcome;
  }
  std::string textOn(const fs::path& file) const {
    const fs::path text = place.path() / "text";
    const std::string command = "pdftotext '" + file.string() + "' '" + text.string() + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);  // NOLINT(cert-env33-c)
    std::string words = test::textOf(text);
    std::erase_if(words, [](char letter) { return letter == '\n' || letter == '\f'; });
    return words;
  }

  test::TemporaryFolder place;
};

TEST_F(SidePickerTest, PicksOneSideOfEverySheet) {
  const fs::path sheets = place.write("sheets.pdf", numberedPDF(6));
  EXPECT_EQ(picked(sheets, SidePicker::Side::fronts), "F1F3F5");
  EXPECT_EQ(picked(sheets, SidePicker::Side::backs), "F2F4F6") << "three, and none is added";
}

TEST_F(SidePickerTest, NamesTheDocumentThatCannotBeRead) {
  EXPECT_EQ(picked(place.write("sheets.pdf", "%PDF-1.4 not quite"), SidePicker::Side::backs),
            "The sheets of “sheets.pdf” cannot be printed one side at a time. Print it one-sided, "
            "or fewer of its pages at a time.");
}

DocumentFacts documentOf(int pages) {
  DocumentFacts facts;
  facts.pages = pages;
  return facts;
}

TEST(FitOnOneSide, IsWhatNeedsNoBack) {
  EXPECT_TRUE(fitOnOneSide({documentOf(1)}, {}));
  EXPECT_FALSE(fitOnOneSide({documentOf(2)}, {}));
  EXPECT_TRUE(fitOnOneSide({documentOf(8)}, {{"page-ranges", "3"}}));
  EXPECT_TRUE(fitOnOneSide({documentOf(4)}, {{"number-up", "4"}}));
  EXPECT_FALSE(fitOnOneSide({documentOf(5)}, {{"number-up", "4"}}));
  EXPECT_FALSE(fitOnOneSide({documentOf(2)}, {{"booklet", "true"}, {"number-up", "4"}}));
}

TEST(FitOnOneSide, CountsThePagesOfAllDocumentsOfAJob) {
  EXPECT_FALSE(fitOnOneSide({documentOf(1), documentOf(1)}, {}));
}

TEST(FitOnOneSide, IsNotSaidWherePagesAreNotKnown) {
  EXPECT_FALSE(fitOnOneSide({documentOf(0)}, {}));
}

}  // namespace
}  // namespace tavrin
