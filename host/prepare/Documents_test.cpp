#include "host/prepare/Documents.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class DocumentsTest : public EventLoopTest {
 protected:
  DocumentsTest() {
    QObject::connect(&documents, &Documents::becameKnown, [this] { ++answers; });
  }
  fs::path pdf(const std::string& fileName, int pages) {
    return place.write(fileName, numberedPDF(pages));
  }
  // Waits until all are known.
  const std::vector<DocumentFacts>& all() {
    documents.look();
    EXPECT_TRUE(eventually([this] { return documents.areKnown(); }));
    return documents.all();
  }
  // How many pages each has, as one text.
  std::string pages() {
    std::string counts;
    for (const DocumentFacts& document : all()) counts += std::to_string(document.pages) + " ";
    return counts;
  }
  std::string problemOf(const fs::path& document) {
    documents.add({document});
    const DocumentFacts& facts = all().back();
    EXPECT_TRUE(facts.file.empty()) << facts.file;
    return facts.problem;
  }

  test::TemporaryFolder place;
  Documents documents;
  int answers = 0;
};

TEST_F(DocumentsTest, KnowsThemInTheirOrder) {
  documents.add({pdf("a.pdf", 3), place.write("b.txt", "Dear Ada,\n"), pdf("c.pdf", 2)});
  EXPECT_EQ(pages(), "3 0 2 ");
  EXPECT_EQ(answers, 1);
  const auto& facts = documents.all();
  EXPECT_EQ(facts[0].format, "application/pdf");
  EXPECT_EQ(facts[1].format, "text/plain");
  EXPECT_EQ(facts[1].document.filename(), "b.txt");
  EXPECT_EQ(test::textOf(facts[1].file), "Dear Ada,\n");
}

TEST_F(DocumentsTest, LooksAtNothingUntilItIsAskedTo) {
  documents.add({pdf("a.pdf", 3)});
  QCoreApplication::processEvents();
  EXPECT_FALSE(documents.areKnown());
  EXPECT_TRUE(documents.all().front().file.empty());
  documents.look();
  documents.look();
  EXPECT_EQ(answers, 0) << "it answers from the event loop";
  EXPECT_EQ(pages(), "3 ");
  EXPECT_EQ(answers, 1) << "once, however often it is asked";
}

TEST_F(DocumentsTest, ReadsADocumentWhateverBytesItsNameHas) {
  documents.add({pdf("-o gr\374n \"%n\".pdf", 2)});
  EXPECT_EQ(pages(), "2 ");
}

TEST_F(DocumentsTest, LooksAtThoseThatComeWhileItLooks) {
  documents.add({pdf("a.pdf", 1)});
  documents.look();
  documents.add({pdf("b.pdf", 2)});
  EXPECT_EQ(pages(), "1 2 ");
  EXPECT_EQ(answers, 1);
}

TEST_F(DocumentsTest, LooksAtThoseThatComeLater) {
  documents.add({pdf("a.pdf", 1)});
  EXPECT_EQ(pages(), "1 ");
  documents.add({pdf("b.pdf", 2), pdf("c.pdf", 3)});
  EXPECT_FALSE(documents.areKnown());
  EXPECT_EQ(pages(), "1 2 3 ");
  EXPECT_EQ(answers, 2);
}

TEST_F(DocumentsTest, ForgetsTheFirstOnes) {
  documents.add({pdf("a.pdf", 1), pdf("b.pdf", 2), pdf("c.pdf", 3)});
  all();
  const fs::path first = documents.all().front().file;
  documents.dropFirst(2);
  EXPECT_FALSE(fs::exists(first));
  EXPECT_TRUE(documents.areKnown());
  EXPECT_EQ(pages(), "3 ");
  EXPECT_TRUE(fs::exists(documents.all().front().file));
  documents.dropFirst(1);
  documents.add({pdf("d.pdf", 4)});
  EXPECT_EQ(pages(), "4 ");
}

TEST_F(DocumentsTest, SaysWhyOneCannotBeRead) {
  const std::string file = place.write("file", "").string();
  const auto about = [](const std::string& document, const char* problem) {
    return "The document \"" + document + "\" " + problem;
  };
  EXPECT_EQ(problemOf(file), about(file, "is empty."));
  EXPECT_EQ(problemOf(place.path()), about(place.path().string(), "is a folder, not a file."));
  EXPECT_EQ(problemOf(file + "s"), about(file + "s", "cannot be read: No such file or directory."));
  EXPECT_EQ(problemOf(file + "/a"), about(file + "/a", "cannot be read: Not a directory."));
}

TEST_F(DocumentsTest, GoesOnBehindOneThatCannotBeRead) {
  documents.add({place.path() / "missing", pdf("a.pdf", 2)});
  EXPECT_EQ(pages(), "0 2 ");
  EXPECT_EQ(documents.all().back().problem, "");
}

TEST_F(DocumentsTest, ADamagedDocumentMayStillBePrinted) {
  documents.add({place.write("damaged.pdf", "%PDF-1.4\nno more")});
  EXPECT_EQ(pages(), "0 ");
  EXPECT_EQ(documents.all().front().problem, "");
}

// It comes once, and that is for the job.
TEST_F(DocumentsTest, TakesNothingOutOfANamedPipe) {
  const fs::path pipe = place.path() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const int both = open(pipe.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
  ASSERT_EQ(write(both, "Dear Ada", 8), 8);
  EXPECT_EQ(
      problemOf(pipe),
      "A document that can be read only once is neither shown nor laid out here. Save it as a "
      "file first, or print it without settings for its pages.");
  std::string there(9, ' ');
  EXPECT_EQ(read(both, there.data(), there.size()), 8);
  close(both);
}

TEST_F(DocumentsTest, LeavesNothingWhenItGoesInTheMiddle) {
  const fs::path temporary = place.path() / "temporary";
  fs::create_directory(temporary);
  const fs::path document = pdf("a.pdf", 1);
  setenv("TMPDIR", temporary.c_str(), 1);
  {
    Documents gone;
    gone.add({document, document});
    gone.look();
    EXPECT_TRUE(eventually([&] { return !gone.all().front().file.empty(); }));
    EXPECT_FALSE(fs::is_empty(temporary));
  }
  EXPECT_TRUE(eventually([&] { return fs::is_empty(temporary); }));
  unsetenv("TMPDIR");
}

// Standard input comes once for the whole process.
TEST_F(DocumentsTest, KeepsACopyOfStandardInput) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto look = [&] {
    dup2(open(pdf("a.pdf", 3).c_str(), O_RDONLY), STDIN_FILENO);
    documents.add({kStandardInput, pdf("b.pdf", 2)});
    std::cerr << pages() << documents.all().front().format;
    documents.dropFirst(2);
    fs::remove_all(place.path());
    std::_Exit(0);
  };
  EXPECT_EXIT(look(), testing::ExitedWithCode(0), "^3 2 application/pdf$");
}

}  // namespace
}  // namespace tavrin
