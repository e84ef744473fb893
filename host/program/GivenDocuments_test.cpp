#include "host/program/GivenDocuments.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/fixtures/EmptyInput.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

class GivenDocumentsTest : public testing::Test {
 protected:
  static CommandLine naming(const std::vector<std::filesystem::path>& documents) {
    CommandLine line;
    line.job.document = documents.front();
    line.namesDocument = true;
    line.furtherDocuments.assign(documents.begin() + 1, documents.end());
    return line;
  }

  test::TemporaryFolder place;
};

TEST_F(GivenDocumentsTest, CanAllBePrinted) {
  const auto card = place.write("card.pdf", "%PDF-1.4 a card");
  EXPECT_EQ(documentProblem(naming({card, card})), "");
}

TEST_F(GivenDocumentsTest, AreLookedAtOneByOne) {
  const auto card = place.write("card.pdf", "%PDF-1.4 a card");
  const auto empty = place.write("empty.pdf", "");
  const auto missing = place.path() / "missing.pdf";
  EXPECT_EQ(documentProblem(naming({card, empty, missing})),
            "The document \"" + empty.string() + "\" is empty.");
  EXPECT_EQ(documentProblem(naming({missing, empty})),
            "The document \"" + missing.string() + "\" cannot be read: No such file or directory.");
}

TEST_F(GivenDocumentsTest, StandardInputIsNotWaitedFor) {
  const test::EmptyInput nothing;
  EXPECT_EQ(documentProblem(naming({kStandardInput})), "");
  EXPECT_EQ(inputProblem(naming({kStandardInput})), "");
  EXPECT_EQ(inputProblem({}), "") << "a pipe is what somebody wants printed";
}

// What it holds can be read more than once then, as a job that failed wants it.
TEST_F(GivenDocumentsTest, APipeIsTakenForStandardInput) {
  const test::EmptyInput before;
  JobRequest job;
  job.document = place.path() / "pipe";
  ASSERT_EQ(mkfifo(job.document.c_str(), 0600), 0);
  const FileDescriptor writer(open(job.document.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
  takeForStandardInput(job);
  EXPECT_EQ(job.document, kStandardInput);
  EXPECT_EQ(job.title, "pipe") << "the name that it would have had";
  ASSERT_EQ(write(writer.get(), "Dear", 4), 4);
  std::string read(5, ' ');
  EXPECT_EQ(::read(STDIN_FILENO, read.data(), read.size()), 4);
}

TEST_F(GivenDocumentsTest, AFileStaysAFile) {
  JobRequest job;
  job.document = place.write("card.pdf", "%PDF-1.4 a card");
  takeForStandardInput(job);
  EXPECT_EQ(job.document, place.path() / "card.pdf");
  EXPECT_EQ(job.title, "");
}

TEST_F(GivenDocumentsTest, APipeKeepsTheTitleThatThePersonGave) {
  const test::EmptyInput before;
  JobRequest job;
  job.title = "A letter";
  job.document = place.path() / "pipe";
  ASSERT_EQ(mkfifo(job.document.c_str(), 0600), 0);
  takeForStandardInput(job);
  EXPECT_EQ(job.title, "A letter");
}

}  // namespace
}  // namespace tavrin
