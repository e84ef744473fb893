#include "host/prepare/DocumentPreparer.h"

#include <optional>
#include <sys/stat.h>

#include "host/prepare/Imposition.h"
#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/FourCorners.h"
#include "tests/fixtures/PDFTexts.h"
#include "tests/fixtures/SeenDocuments.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

using Pages = std::vector<std::string>;

constexpr char kLetter[] = "Dear Ada,\n\fhere is a page.\n\fAnd another one.\n";

class DocumentPreparerTest : public EventLoopTest {
 protected:
  fs::path pdf(const std::string& fileName, int pages) {
    return place.write(fileName, numberedPDF(pages));
  }
  fs::path picture(const std::string& fileName) {
    return place.write(fileName, "P6 2 1 255\n" + std::string("\xff\0\0\0\0\xff", 6));
  }
  Preparation wish(const std::vector<fs::path>& documents, const OptionList& options = {}) {
    seen.emplace(documents);
    return test::preparationFor(seen->facts(), fs::path(SAMPLE_PRINTERS) / "tavrin-r420.ppd",
                                options);
  }
  // What becomes of the documents; what is said where they cannot be prepared is kept.
  std::vector<PreparedDocument> prepared(const Preparation& preparation) {
    DocumentPreparer preparer(preparation);
    std::optional<std::vector<PreparedDocument>> answer;
    said.clear();
    isNothing = false;
    QObject::connect(&preparer, &DocumentPreparer::prepared,
                     [&](const auto& documents) { answer = documents; });
    QObject::connect(&preparer, &DocumentPreparer::failed, [&](const QString& why) { say(why); });
    QObject::connect(&preparer, &DocumentPreparer::nothingLeft, [&](const QString& why) {
      isNothing = true;
      say(why);
    });
    preparer.start();
    EXPECT_FALSE(answer) << "it answers from the event loop";
    EXPECT_TRUE(eventually([&] { return answer || !said.empty(); }));
    return answer.value_or(std::vector<PreparedDocument>());
  }
  PreparedDocument only(const Preparation& preparation) {
    const auto all = prepared(preparation);
    EXPECT_EQ(all.size(), 1U) << said;
    return all.empty() ? PreparedDocument() : all.front();
  }
  // The sentence in place of prepared documents.
  std::string complaint(const Preparation& preparation) {
    EXPECT_TRUE(prepared(preparation).empty());
    return said;
  }
  void say(const QString& sentence) { said = sentence.toStdString(); }

  test::TemporaryFolder place;
  std::optional<test::SeenDocuments> seen;
  std::string said;
  bool isNothing = false;  // because no page is left
};

TEST_F(DocumentPreparerTest, LeavesAloneWhatTheFiltersLayOut) {
  const OptionList options{{"number-up", "2"}, {"Mirror", "True"}};
  const Preparation wanted = wish({pdf("a.pdf", 8)}, options);
  const PreparedDocument same = only(wanted);
  EXPECT_EQ(same.document, place.path() / "a.pdf");
  EXPECT_EQ(same.file, wanted.documents.front().file);
  EXPECT_EQ(same.format, "application/pdf");
  EXPECT_EQ(same.options, options);
  EXPECT_EQ(same.facts, wanted.documents.front());
  EXPECT_EQ(same.folder, nullptr);
}

TEST_F(DocumentPreparerTest, PutsTheChosenPagesOfAPDFOnSheets) {
  const PreparedDocument sheets =
      only(wish({pdf("a.pdf", 8)}, {{"number-up", "2"}, {"page-ranges", "2-5"}}));
  EXPECT_EQ(test::textsOf(sheets.file), (Pages{"F2 F3", "F4 F5"}));
  EXPECT_EQ(sheets.document, place.path() / "a.pdf") << "which has given it its name";
  EXPECT_EQ(sheets.format, "application/pdf");
  EXPECT_EQ(sheets.options, optionsOnceImposed({}));
  EXPECT_EQ(sheets.facts.pages, 8) << "the person's document";
  ASSERT_TRUE(sheets.folder);
  EXPECT_EQ(sheets.file.parent_path(), sheets.folder->path());
}

TEST_F(DocumentPreparerTest, PicksThePagesOfAText) {
  const fs::path letter = place.write("letter.txt", kLetter);
  const Pages all = test::textsOf(only(wish({letter}, {{"page-ranges", "1-"}})).file);
  ASSERT_EQ(all.size(), 3U);
  const PreparedDocument sheets = only(wish({letter}, {{"page-ranges", "2-"}}));
  EXPECT_EQ(test::textsOf(sheets.file), Pages(all.begin() + 1, all.end()));
  EXPECT_EQ(sheets.format, "application/pdf");
}

TEST_F(DocumentPreparerTest, ATextKeepsAwayFromTheEdgeWhereItIsLeftAlone) {
  Preparation wanted = wish({place.write("letter.txt", kLetter)});
  wanted.paper.margins = {};
  const PreparedDocument text = only(wanted);
  EXPECT_EQ(text.folder, nullptr);
  EXPECT_EQ(optionValue(text.options, "page-left"), "36");
}

TEST_F(DocumentPreparerTest, APictureOfAnotherKindBecomesAPDF) {
  Preparation wanted = wish({picture("a.ppm")});
  EXPECT_EQ(only(wanted).folder, nullptr);
  wanted.documents.front().format = "image/webp";
  const PreparedDocument sheet = only(wanted);
  EXPECT_EQ(sheet.format, "application/pdf");
  EXPECT_EQ(test::textsOf(sheet.file), Pages{""});
}

TEST_F(DocumentPreparerTest, SeveralDocumentsAreAJobEach) {
  const auto jobs = prepared(wish(
      {pdf("a.pdf", 4), picture("b.ppm"), place.write("c.txt", kLetter)}, {{"number-up", "2"}}));
  ASSERT_EQ(jobs.size(), 3U) << said;
  EXPECT_EQ(jobs[0].document.filename(), "a.pdf");
  EXPECT_EQ(jobs[0].folder, nullptr);
  EXPECT_EQ(jobs[1].document.filename(), "b.ppm");
  EXPECT_NE(jobs[1].folder, nullptr) << "the filters take a picture for a sheet";
  EXPECT_EQ(jobs[2].format, "text/plain");
}

TEST_F(DocumentPreparerTest, PicturesGoTogetherOnSheets) {
  const PreparedDocument sheets =
      only(wish({picture("a.ppm"), picture("b.ppm"), picture("c.ppm")},
                {{"multiple-document-handling", "single-document"}, {"number-up", "2"}}));
  EXPECT_EQ(sheets.document.filename(), "a.ppm");
  EXPECT_EQ(test::textsOf(sheets.file), (Pages{"", ""})) << "two of three, and one";
  EXPECT_EQ(sheets.facts.pages, 3);
}

TEST_F(DocumentPreparerTest, FillsTheLastSheetWhereItHasTwoSides) {
  Preparation wanted = wish({pdf("a.pdf", 3)});
  wanted.wholeSheets = true;
  EXPECT_EQ(test::textsOf(only(wanted).file), (Pages{"F1", "F2", "F3", ""}));
}

TEST_F(DocumentPreparerTest, LeavesEverythingToAPrinterThatTakesDocumentsAsTheyAre) {
  Preparation wanted = wish({pdf("a.pdf", 3)}, {{"scaling", "50"}});
  wanted.ppd.clear();
  EXPECT_EQ(only(wanted).folder, nullptr);
  EXPECT_EQ(only(wanted).options, (OptionList{{"scaling", "50"}}));
}

TEST_F(DocumentPreparerTest, TakesADocumentForWhatThePersonSaysThatItIs) {
  const OptionList options{{"scaling", "50"}, {"document-format", "application/pdf"}};
  Preparation wanted = wish({pdf("a.pdf", 3)}, options);
  wanted.documents.front().format = "application/octet-stream";
  const PreparedDocument sheets = only(wanted);
  EXPECT_EQ(test::textsOf(sheets.file), (Pages{"F1", "F2", "F3"}));
  EXPECT_EQ(optionValue(sheets.options, "document-format"), std::nullopt);
}

TEST_F(DocumentPreparerTest, PassesOnAnyNumberOfDocuments) {
  Preparation wanted = wish({pdf("a.pdf", 1)});
  wanted.documents.resize(20'000, wanted.documents.front());
  EXPECT_EQ(prepared(wanted).size(), 20'000U);
}

TEST_F(DocumentPreparerTest, SaysThatNoPageIsLeft) {
  EXPECT_EQ(complaint(wish({pdf("a.pdf", 3)}, {{"page-ranges", "4-9"}})),
            "“a.pdf” has 3 pages, none of which is to be printed. Choose other pages.");
  EXPECT_TRUE(isNothing);
  EXPECT_EQ(complaint(wish({picture("b.ppm")}, {{"page-set", "even"}})),
            "“b.ppm” has only one page, and that is not to be printed. Choose other pages.");
  EXPECT_TRUE(isNothing);
  EXPECT_EQ(complaint(wish({place.write("c.txt", kLetter)}, {{"page-ranges", "4"}})),
            "None of the pages to print is in “c.txt”. Choose other pages.");
  EXPECT_TRUE(isNothing);
}

TEST_F(DocumentPreparerTest, SaysSoOfTheLaterDocumentsToo) {
  EXPECT_EQ(complaint(wish({pdf("a.pdf", 3), pdf("b.pdf", 2)}, {{"page-ranges", "3"}})),
            "“b.pdf” has 2 pages, none of which is to be printed. Choose other pages.");
}

TEST_F(DocumentPreparerTest, SaysWhyADocumentCannotBeLaidOut) {
  const OptionList options{{"scaling", "150"}};
  const std::string jpeg = test::encoded(test::fourCorners(20, 10), "jpeg");
  EXPECT_EQ(complaint(wish({place.write("cut.pdf", "%PDF-1.4\nno more")}, options)),
            "“cut.pdf” cannot be laid out like this: it is damaged, or too large. Without settings "
            "for its pages it may print all the same.");
  EXPECT_EQ(complaint(wish({place.write("cut.jpg", jpeg.substr(0, jpeg.size() - 9))})),
            "“cut.jpg” is damaged or cut off, or too large. Copy it anew, or open it in its own "
            "program and print it there.")
      << "also without settings";
  EXPECT_EQ(complaint(wish({place.write("locked.pdf", lockedPDF())}, options)),
            "“locked.pdf” is protected with a password. Open it in its own program, and print it "
            "there or save it without the password.");
  Preparation unknown = wish({place.write("star.png", "not seen before")}, options);
  unknown.documents.front().format = "image/x-of-another-star";
  EXPECT_EQ(complaint(unknown),
            "This computer has no program library that reads pictures like “star.png”. Save it as "
            "JPEG or PNG first.");
  EXPECT_FALSE(isNothing);
}

TEST_F(DocumentPreparerTest, SaysWhyADocumentCannotBeRead) {
  const fs::path pipe = place.path() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  Preparation once = wish({pipe});
  EXPECT_EQ(only(once).document, pipe) << "it is the job that reads it";
  once.documents.front().format = "application/pdf";
  once.options = {{"scaling", "50"}};
  EXPECT_EQ(complaint(once),
            "A document that can be read only once is neither shown nor laid out here. Save it as "
            "a file first, or print it without settings for its pages.");
}

TEST_F(DocumentPreparerTest, SaysThatADocumentIsGone) {
  const Preparation wanted = wish({pdf("a.pdf", 3)}, {{"scaling", "50"}});
  fs::remove(place.path() / "a.pdf");
  EXPECT_EQ(complaint(wanted), "The document “a.pdf” is no longer there.");
}

TEST_F(DocumentPreparerTest, SaysThatThereIsNoRoom) {
  const Preparation wanted = wish({pdf("a.pdf", 3)}, {{"scaling", "50"}});
  setenv("TMPDIR", "/proc", 1);
  EXPECT_EQ(complaint(wanted), "There is no room in the temporary folder to lay out “a.pdf”.");
  unsetenv("TMPDIR");
}

TEST_F(DocumentPreparerTest, LeavesNoFiles) {
  const fs::path damaged = place.write("damaged.pdf", "%PDF-1.4\n");
  Preparation wanted = wish({pdf("a.pdf", 3)}, {{"scaling", "50"}});
  const fs::path temporary = place.path() / "temporary";
  fs::create_directory(temporary);
  setenv("TMPDIR", temporary.c_str(), 1);
  {
    const PreparedDocument sheets = only(wanted);
    EXPECT_FALSE(fs::is_empty(temporary));
  }
  EXPECT_TRUE(fs::is_empty(temporary));
  wanted.documents.front().file = damaged;
  EXPECT_NE(complaint(wanted), "");
  EXPECT_TRUE(fs::is_empty(temporary));
  {
    DocumentPreparer dropped(wanted);
    dropped.start();
    EXPECT_TRUE(eventually([&] { return !fs::is_empty(temporary); }));
  }
  EXPECT_TRUE(fs::is_empty(temporary)) << "of a preparer that was dropped at work";
  unsetenv("TMPDIR");
}

}  // namespace
}  // namespace tavrin
