#include "host/document/Document.h"

#include <fcntl.h>
#include <iostream>
#include <sys/stat.h>
#include <thread>

#include <gtest/gtest.h>

#include "host/document/DocumentName.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class DocumentTest : public testing::Test {
 protected:
  std::string problem(const fs::path& file) const {
    const auto document = Document::open(file);
    return document ? "" : document.reason();
  }

  static Document::Taker appendTo(std::string& text) {
    return [&text](std::span<const char> piece) {
      text.append(piece.data(), piece.size());
      return Done{};
    };
  }

  test::TemporaryFolder place;
};

TEST_F(DocumentTest, ReadsAFileToItsEnd) {
  const std::string text(100000, 'x');
  auto document = Document::open(place.write("a.txt", text));
  ASSERT_TRUE(document) << document.reason();
  EXPECT_EQ(document->name(), "a.txt");
  EXPECT_EQ(document->format(), "text/plain");
  EXPECT_EQ(document->size(), text.size());
  std::string read;
  std::uint64_t told = 0;
  EXPECT_TRUE(document->readAll(appendTo(read), neverCancelled(),
                                [&](const Progress& progress) { told = progress.done; }));
  EXPECT_EQ(read, text);
  EXPECT_EQ(told, text.size());
}

TEST_F(DocumentTest, IsNotReadOnOnceAPieceWasNotTaken) {
  auto document = Document::open(place.write("a.txt", std::string(100000, 'x')));
  ASSERT_TRUE(document) << document.reason();
  int pieces = 0;
  const auto full = [&](std::span<const char>) -> Cancellable<Done> {
    ++pieces;
    return Failure{"no room"};
  };
  EXPECT_EQ(document->readAll(full, neverCancelled(), {}).reason(), "no room");
  EXPECT_EQ(pieces, 1);
}

// Somebody writes the file anew while it is read; tells what became of reading it.
class ChangingDocumentTest : public DocumentTest {
 protected:
  static std::string readWhileItBecomes(std::uintmax_t size, const fs::path& document,
                                        const fs::path& file) {
    auto opened = Document::open(document);
    if (!opened) return opened.reason();
    const auto rewrite = [&](std::span<const char>) {
      fs::resize_file(file, size);
      return Done{};
    };
    const auto end = opened->readAll(rewrite, neverCancelled(), {});
    return end ? "read" : end.reason();
  }

  const fs::path file = place.write("card.pdf", std::string(100000, 'x'));
};

TEST_F(ChangingDocumentTest, IsNotTakenForWhole) {
  EXPECT_EQ(readWhileItBecomes(600, file, file),
            "The document \"card.pdf\" changed while it was read: it had 100000 bytes when it was "
            "opened, but 600 were read. Print it again when it is complete.");
}

TEST_F(ChangingDocumentTest, IsNotReadForEverWhileItGrows) {
  const std::string end = readWhileItBecomes(3000000, file, file);
  EXPECT_NE(end.find("it had 100000 bytes when it was opened, but 131"), std::string::npos) << end;
}

TEST_F(ChangingDocumentTest, IsNotTakenForWholeFromStandardInputEither) {
  const auto readStandardInput = [&] {
    dup2(open(file.c_str(), O_RDONLY), STDIN_FILENO);
    lseek(STDIN_FILENO, 1000, SEEK_SET);  // the command before has read so much
    std::cerr << readWhileItBecomes(2000, kStandardInput, file);
    std::_Exit(0);
  };
  EXPECT_EXIT(
      readStandardInput(), testing::ExitedWithCode(0),
      "^Standard input changed while it was read: it had 99000 bytes when it was opened, but "
      "1000 were read. Run the command once more when it is complete.");
}

TEST_F(ChangingDocumentTest, IsNotMixedWithItsFormerSelfFromStandardInput) {
  const auto readStandardInputTwice = [&] {
    dup2(open(file.c_str(), O_RDONLY), STDIN_FILENO);
    readWhileItBecomes(600, kStandardInput, file);
    fs::resize_file(file, 100000);
    std::cerr << readWhileItBecomes(100000, kStandardInput, file);
    std::_Exit(0);
  };
  EXPECT_EXIT(readStandardInputTwice(), testing::ExitedWithCode(0),
              "^Standard input cannot be sent again, as it changed while it was read: "
              "run the command once more when it is complete.$");
}

TEST_F(DocumentTest, IsReadToItsEndWhereItsSizeIsUnknown) {
  auto document = Document::open("/proc/self/status");
  ASSERT_TRUE(document) << document.reason();
  EXPECT_EQ(document->size(), 0u);
  std::string read;
  EXPECT_TRUE(document->readAll(appendTo(read), neverCancelled(), {}));
  EXPECT_NE(read.find("VmRSS"), std::string::npos);
}

TEST_F(DocumentTest, IsCalledByItsNameOrStandardInput) {
  const auto readNothing = [] {
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    std::cerr << Document::open(kStandardInput).reason();
    std::_Exit(0);
  };
  EXPECT_EXIT(readNothing(), testing::ExitedWithCode(0), "^Standard input is empty.$");
}

TEST_F(DocumentTest, SaysWhatCannotBePrinted) {
  EXPECT_EQ(problem("/nowhere/a.pdf"),
            "The document \"/nowhere/a.pdf\" cannot be read: No such file or directory.");
  EXPECT_EQ(problem("/usr"), "The document \"/usr\" is a folder, not a file.");
  EXPECT_EQ(problem("/dev/zero"), "The document \"/dev/zero\" is a device, not a file.");
  const fs::path empty = place.write("empty.pdf", "");
  EXPECT_EQ(problem(empty), "The document \"" + empty.string() + "\" is empty.");
}

TEST_F(DocumentTest, IsNotReadOnOnceCancelled) {
  auto document = Document::open(place.write("a.txt", "Dear Ada"));
  ASSERT_TRUE(document) << document.reason();
  std::string read;
  const CancelFlag cancelled = true;
  EXPECT_TRUE(document->readAll(appendTo(read), cancelled, {}).cancelled());
  EXPECT_EQ(read, "");
}

TEST_F(DocumentTest, StopsWaitingForAFIFOOnceCancelled) {
  const fs::path fifo = place.path() / "fifo";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  CancelFlag cancel = false;
  std::thread canceller([&] { cancel = true; });
  EXPECT_TRUE(Document::open(fifo, cancel).cancelled());
  canceller.join();
}

}  // namespace
}  // namespace tavrin
