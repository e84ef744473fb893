#include "host/prepare/DocumentLook.h"

#include <optional>

#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/FourCorners.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

class DocumentLookTest : public EventLoopTest {
 protected:
  DocumentFacts seen(const std::string& format, const std::string& bytes) {
    DocumentFacts facts;
    facts.document = "letter.pdf";
    facts.file = place.write("document", bytes);
    facts.format = format;
    DocumentLook look(facts);
    std::optional<DocumentFacts> answer;
    QObject::connect(&look, &DocumentLook::seen,
                     [&](const DocumentFacts& found) { answer = found; });
    look.start();
    EXPECT_FALSE(answer) << "it answers from the event loop";
    EXPECT_TRUE(eventually([&] { return answer.has_value(); }));
    EXPECT_EQ(answer->file, facts.file);
    EXPECT_EQ(answer->format, format);
    return *answer;
  }
  // A PDF of pages with these sizes, "612 792".
  static std::string pdfOfSizes(const std::vector<std::string>& sizes) {
    std::string kids;
    std::vector<std::string> pages;
    for (const std::string& size : sizes) {
      kids += std::to_string(3 + pages.size()) + " 0 R ";
      pages.push_back("<</Type/Page/Parent 2 0 R/MediaBox[0 0 " + size + "]>>");
    }
    pages.insert(pages.begin(),
                 {"<</Type/Catalog/Pages 2 0 R>>",
                  "<</Type/Pages/Kids[" + kids + "]/Count " + std::to_string(sizes.size()) + ">>"});
    return pdfOf(pages);
  }

  test::TemporaryFolder place;
};

TEST_F(DocumentLookTest, CountsAndMeasuresThePagesOfAPDF) {
  const DocumentFacts facts = seen("application/pdf", numberedPDF(3));
  EXPECT_EQ(facts.pages, 3);
  EXPECT_EQ(facts.width, 612);
  EXPECT_EQ(facts.height, 792);
  EXPECT_TRUE(facts.isPortrait());
  EXPECT_FALSE(facts.isStoredOtherwise);
}

TEST_F(DocumentLookTest, NoticesAPageThatIsWiderThanHigh) {
  const DocumentFacts facts = seen("application/pdf", pdfOfSizes({"300 400", "400 300"}));
  EXPECT_EQ(facts.pages, 2);
  EXPECT_EQ(facts.width, 300) << "the first page's";
  EXPECT_EQ(facts.widePages, std::vector{2});
}

TEST_F(DocumentLookTest, SeesAPictureAsItsCameraWants) {
  const QImage wide = test::fourCorners(40, 20);
  const DocumentFacts stored = seen("image/jpeg", test::jpegStoredAs(1, wide));
  EXPECT_EQ(stored.pages, 1);
  EXPECT_FALSE(stored.isPortrait());
  EXPECT_FALSE(stored.isStoredOtherwise);
  const DocumentFacts turned = seen("image/jpeg", test::jpegStoredAs(6, wide));
  EXPECT_TRUE(turned.isPortrait());
  EXPECT_TRUE(turned.isStoredOtherwise);
  EXPECT_GT(turned.height, turned.width);
}

TEST_F(DocumentLookTest, CountsNoPagesOfAText) {
  const DocumentFacts facts = seen("text/plain", "Dear Ada,\n\fyours.\n");
  EXPECT_EQ(facts.pages, 0);
  EXPECT_EQ(facts.width, 0);
}

TEST_F(DocumentLookTest, WhatCannotBeSeenStaysUnknown) {
  EXPECT_EQ(seen("application/pdf", "%PDF-1.4\nno more").pages, 0);
  EXPECT_EQ(seen("image/png", "\x89PNG\r\n\x1a\nno more").pages, 0);
  EXPECT_EQ(seen("image/x-of-another-star", "II*").pages, 0);
}

TEST_F(DocumentLookTest, SaysWhatToDoWithAProtectedDocument) {
  EXPECT_EQ(seen("application/pdf", lockedPDF()).problem,
            "“letter.pdf” is protected with a password. Open it in its own program, and print it "
            "there or save it without the password.");
  EXPECT_EQ(seen("application/pdf", numberedPDF(1)).problem, "");
}

TEST_F(DocumentLookTest, IsNotHeardOfOnceItIsGone) {
  int answers = 0;
  DocumentFacts facts;
  facts.file = place.write("document", numberedPDF(1));
  facts.format = "application/pdf";
  {
    DocumentLook look(facts);
    QObject::connect(&look, &DocumentLook::seen, [&] { ++answers; });
    look.start();
  }
  EXPECT_EQ(seen("application/pdf", numberedPDF(2)).pages, 2);
  EXPECT_EQ(answers, 0);
}

}  // namespace
}  // namespace tavrin
