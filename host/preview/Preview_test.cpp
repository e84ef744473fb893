#include "host/preview/Preview.h"

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <map>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/FourCorners.h"
#include "tests/fixtures/SeenDocuments.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

using Ink = SheetPainter::Ink;
using Stage = Preview::Stage;

// A picture in the portable anymap format.
struct Picture {
  explicit Picture(const QByteArray& bytes) {
    std::istringstream text(bytes.toStdString());
    int most = 0;
    text >> kind >> width >> height >> most;
    dots = bytes.right(qsizetype(width) * height * (kind == "P6" ? 3 : 1)).toStdString();
  }
  std::string row(int y) const {
    const int length = width * (kind == "P6" ? 3 : 1);
    return dots.substr(static_cast<std::size_t>(y) * length, length);
  }

  std::string kind;
  int width = 0, height = 0;
  std::string dots;
};

class PreviewTest : public EventLoopTest {
 protected:
  PreviewTest() {
    QObject::connect(&preview, &Preview::drawn, [this](int index, int, const QByteArray& bytes) {
      pictures.insert_or_assign(index, Picture(bytes));
    });
    QObject::connect(&preview, &Preview::stageChanged,
                     [this] { answers += preview.stage() >= Stage::ready; });
  }
  Preparation job(const OptionList& options = {}) {
    if (!seen || seen->facts().front().document != document) seen.emplace(std::vector{document});
    return test::preparationFor(seen->facts(), fs::path(SAMPLE_PRINTERS) / "tavrin-r420.ppd",
                                options);
  }
  bool reaches(Stage stage) {
    return eventually([&] { return preview.stage() == stage; });
  }
  // Shows it; the number of sheets, or what is said instead.
  std::string outcome(const Preparation& shown) {
    answers = 0;
    preview.show(shown);
    EXPECT_TRUE(eventually([&] { return answers > 0; }));
    return preview.stage() == Stage::ready ? std::to_string(preview.sheets().count())
                                           : preview.problem().toStdString();
  }
  Picture drawn(int index, Ink ink = Ink::colour) {
    pictures.clear();
    preview.draw(index, 100, ink);
    EXPECT_TRUE(eventually([&] { return pictures.contains(index); }));
    return pictures.at(index);
  }

  test::TemporaryFolder place;
  fs::path document = place.write("pages.pdf", numberedPDF(8));
  std::optional<test::SeenDocuments> seen;
  Preview preview;
  int answers = 0;
  std::map<int, Picture> pictures;
};

TEST_F(PreviewTest, ShowsEverySheet) {
  EXPECT_EQ(outcome(job()), "8");
  const Picture last = drawn(7);
  EXPECT_EQ(last.height, 100);
  EXPECT_EQ(last.kind, "P6");
  EXPECT_NE(last.dots, drawn(0).dots);
}

TEST_F(PreviewTest, ShowsTheJobsOptions) { EXPECT_EQ(outcome(job({{"number-up", "4"}})), "2"); }

TEST_F(PreviewTest, AMirroredSheetIsTheOtherSheetsMirrorImage) {
  outcome(job());
  const Picture plain = drawn(0, Ink::grey);
  preview.pause();
  outcome(job({{"Mirror", "True"}}));
  const Picture mirrored = drawn(0, Ink::grey);
  ASSERT_EQ(mirrored.dots.size(), plain.dots.size());
  EXPECT_TRUE(mirrored.dots != plain.dots);
  int different = 0;
  for (int y = 0; y < plain.height; ++y) {
    std::string row = plain.row(y);
    std::ranges::reverse(row);
    // The edges of what is drawn fall between dots.
    for (std::size_t x = 0; x < row.size(); ++x)
      different += std::abs(static_cast<unsigned char>(row[x]) -
                            static_cast<unsigned char>(mirrored.row(y)[x])) > 128;
  }
  EXPECT_LT(different, plain.width * plain.height / 100);
}

TEST_F(PreviewTest, DrawsInGreyWhereOnlyBlackIsPrinted) {
  outcome(job());
  EXPECT_EQ(drawn(0, Ink::grey).kind, "P5");
}

TEST_F(PreviewTest, MakesOnlyTheLastOfSeveralJobsInQuickSuccession) {
  int made = 0;
  QObject::connect(&preview, &Preview::stageChanged,
                   [&] { made += preview.stage() == Stage::ready; });
  outcome(job());
  for (const char* pages : {"2", "4", "6", "9"}) preview.show(job({{"number-up", pages}}));
  EXPECT_TRUE(eventually([&] { return preview.sheets().count() == 1; }));
  EXPECT_EQ(made, 2);
}

TEST_F(PreviewTest, KeepsTheSheetsUntilThereAreNewOnes) {
  outcome(job());
  preview.show(job({{"number-up", "4"}}));
  EXPECT_EQ(preview.sheets().count(), 8);
  EXPECT_TRUE(eventually([&] { return preview.sheets().count() == 2; }));
}

TEST_F(PreviewTest, SaysWhenNothingComesOut) {
  EXPECT_EQ(outcome(job({{"page-ranges", "50"}})),
            "“pages.pdf” has 8 pages, none of which is to be printed. Choose other pages.");
  EXPECT_EQ(preview.stage(), Stage::nothing);
}

TEST_F(PreviewTest, SaysWhyThereIsNoPicture) {
  document = place.write("broken.pdf", "%PDF-1.4\nno more");
  EXPECT_EQ(outcome(job()),
            "“broken.pdf” could not be laid out: it is damaged, protected, or too large.");
}

TEST_F(PreviewTest, SaysOfAPictureThatIsCutOffThatItIs) {
  const std::string whole = test::encoded(test::fourCorners(90, 90), "png");
  document = place.write("cut.png", whole.substr(0, whole.size() / 2));
  EXPECT_EQ(outcome(job()),
            "“cut.png” is damaged or cut off, or too large. Copy it anew, or open it in its own "
            "program and print it there.");
}

TEST_F(PreviewTest, ShowsWhatAPrinterGetsBehindWordsInItsOwnLanguage) {
  Preparation spoken = job();
  const std::size_t line = spoken.ppd.find("*ModelName");
  ASSERT_NE(line, std::string::npos);
  spoken.ppd.insert(line,
                    "*JCLBegin: \"<1B>%-12345X@PJL<0A>\"\n"
                    "*JCLToPDFInterpreter: \"@PJL ENTER LANGUAGE = PDF<0A>\"\n"
                    "*JCLEnd: \"<1B>%-12345X\"\n");
  EXPECT_EQ(outcome(spoken), "8");
}

TEST_F(PreviewTest, ShowsADocumentWhateverBytesItsNameHas) {
  document = place.write("gr\374n.pdf", numberedPDF(2));
  EXPECT_EQ(outcome(job()), "2");
}

TEST_F(PreviewTest, SaysThatTheDocumentHasGone) {
  EXPECT_EQ(outcome(job()), "8");
  fs::remove(document);
  preview.show(job({{"number-up", "4"}}));
  EXPECT_TRUE(reaches(Stage::failed));
  EXPECT_EQ(preview.problem().toStdString(), "The document “pages.pdf” is no longer there.");
}

TEST_F(PreviewTest, RunsNoPrograms) {
  document = place.write("program.ps", "%!PS\nshowpage\n");
  EXPECT_EQ(outcome(job()), "There is no preview of this kind of document.");
}

TEST_F(PreviewTest, ARawJobIsNotLaidOut) {
  const std::string asItIs = "The printer gets the document as it is, so there is nothing to show.";
  EXPECT_EQ(outcome(job({{"raw", "true"}})), asItIs);
  preview.pause();
  Preparation withoutPPD = job();
  withoutPPD.ppd.clear();
  EXPECT_EQ(outcome(withoutPPD), asItIs);
}

TEST_F(PreviewTest, APPDCannotHaveItsProgramsRun) {
  const fs::path evil = place.write("evil", "#!/bin/sh\ntouch " + (place.path() / "done").string());
  fs::permissions(evil, fs::perms::owner_all);
  Preparation hostile = job();
  hostile.ppd += "*cupsPreFilter: \"application/pdf 0 " + evil.string() + "\"\n";
  hostile.ppd += "*cupsFilter: \"application/pdf 0 " + evil.string() + "\"\n";
  EXPECT_EQ(outcome(hostile), "8");
  EXPECT_FALSE(fs::exists(place.path() / "done"));
}

TEST_F(PreviewTest, LeavesNoFiles) {
  const fs::path temporary = place.path() / "temporary";
  fs::create_directory(temporary);
  const Preparation shown = job();
  setenv("TMPDIR", temporary.c_str(), 1);
  {
    Preview other;
    other.show(shown);
    EXPECT_TRUE(eventually([&] { return other.stage() == Stage::ready; }));
    EXPECT_FALSE(fs::is_empty(temporary));
  }
  EXPECT_TRUE(fs::is_empty(temporary));
  unsetenv("TMPDIR");
}

TEST_F(PreviewTest, WaitsWhileTheDocumentsAreLookedAt) {
  preview.wait();
  EXPECT_EQ(preview.stage(), Stage::waiting);
  EXPECT_EQ(outcome(job()), "8");
}

TEST_F(PreviewTest, ShowsAllDocumentsOneAfterTheOther) {
  const test::SeenDocuments both({document, place.write("more.pdf", numberedPDF(3))});
  Preparation several = job();
  several.documents = both.facts();
  EXPECT_EQ(outcome(several), "11");
  EXPECT_EQ(preview.sheets().at(7).index, 7);
  EXPECT_EQ(preview.sheets().at(8).index, 0);
  EXPECT_EQ(preview.sheets().at(8).document.document.document.filename(), "more.pdf");
}

// Standard input comes once; what the preview has read, the job reads again.
TEST_F(PreviewTest, ShowsStandardInput) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto show = [&] {
    dup2(open(document.c_str(), O_RDONLY), STDIN_FILENO);
    document = kStandardInput;
    std::cerr << outcome(job());
    std::_Exit(0);
  };
  EXPECT_EXIT(show(), testing::ExitedWithCode(0), "^8$");
}

}  // namespace
}  // namespace tavrin
