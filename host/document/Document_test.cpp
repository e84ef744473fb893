#include "host/document/Document.h"

#include <sys/stat.h>
#include <thread>

#include <gtest/gtest.h>

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
  std::string buffer(700, '\0');
  for (std::size_t bytes; (bytes = *document->read(buffer, neverCancelled())) > 0;)
    read.append(buffer, 0, bytes);
  EXPECT_EQ(read, text);
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
  std::string buffer(100, '\0');
  const CancelFlag cancelled = true;
  EXPECT_TRUE(document->read(buffer, cancelled).cancelled());
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
