#include "host/document/RereadableInput.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "platform/files/FileDescriptor.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

class RereadableInputTest : public testing::Test {
 protected:
  RereadableInputTest() {
    std::array<int, 2> ends{};
    EXPECT_EQ(pipe(ends.data()), 0);
    out = FileDescriptor(ends[0]);
    in = FileDescriptor(ends[1]);
  }

  void send(const std::string& text) {
    EXPECT_EQ(::write(in.get(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  // What one read gives.
  static std::string read(RereadableInput& input, std::uint64_t offset, std::size_t most = 100) {
    std::string text(most, '\0');
    const auto bytes = input.read(offset, text, neverCancelled());
    if (!bytes) return bytes.reason();
    text.resize(*bytes);
    return text;
  }

  FileDescriptor out, in;
};

TEST_F(RereadableInputTest, GivesWhatHasComeAgain) {
  RereadableInput input(out.get());
  send("a photo");
  EXPECT_EQ(read(input, 0), "a photo");
  EXPECT_EQ(read(input, 0, 3), "a p");
  EXPECT_EQ(read(input, 3), "hoto");
  send(" of us");
  EXPECT_EQ(read(input, 2), "photo");  // what is kept first, then what follows
  EXPECT_EQ(read(input, 7), " of us");
  in.close();
  EXPECT_EQ(read(input, 13), "");
  EXPECT_EQ(read(input, 0), "a photo of us");
}

TEST_F(RereadableInputTest, WaitsUntilItIsCancelled) {
  RereadableInput input(out.get());
  const CancelFlag cancelled = true;
  std::string buffer(100, '\0');
  EXPECT_TRUE(input.read(0, buffer, cancelled).cancelled());
  send("still there");
  EXPECT_EQ(read(input, 0), "still there");
}

// A file of seven bytes when the input is opened, and another text later.
class RereadableFileTest : public RereadableInputTest {
 protected:
  void rewrite(const std::string& text) const { place.write("photo", text); }

  const std::string changed =
      "cannot be sent again, as it changed while it was read: run the command once more when it is "
      "complete";
  const test::TemporaryFolder place;
  const FileDescriptor file{open(place.write("photo", "a photo").c_str(), O_RDONLY)};
  RereadableInput input{file.get()};
};

TEST_F(RereadableFileTest, IsReadOnceWhenItHasBecomeShorter) {
  EXPECT_EQ(read(input, 0, 3), "a p");
  EXPECT_EQ(read(input, 0, 3), "a p");
  rewrite("a pie");
  EXPECT_EQ(read(input, 3), "ie");
  EXPECT_EQ(read(input, 5), "");
  rewrite("a piece");
  EXPECT_EQ(read(input, 0), changed);
}

TEST_F(RereadableFileTest, IsReadOnceWhenItHasBecomeLonger) {
  EXPECT_EQ(read(input, 0), "a photo");
  EXPECT_EQ(read(input, 7), "");
  EXPECT_EQ(read(input, 0), "a photo");
  rewrite("a photo of us");
  EXPECT_EQ(read(input, 7), " of us");
  EXPECT_EQ(read(input, 0), changed);
}

// As on a full disk: no file of this process may grow beyond so many bytes.
class LargestFile {
 public:
  explicit LargestFile(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{bytes, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    handlerBefore = std::signal(SIGXFSZ, SIG_IGN);
  }
  ~LargestFile() {
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handlerBefore);
  }
  LargestFile(const LargestFile&) = delete;
  LargestFile& operator=(const LargestFile&) = delete;

 private:
  rlimit before{};
  void (*handlerBefore)(int) = nullptr;
};

TEST_F(RereadableInputTest, IsReadOnceWhereItCannotBeKept) {
  RereadableInput input(out.get());
  std::string first, second, third;
  {
    const LargestFile full(4);
    send("a photo");
    first = read(input, 0);
    send(" of us");
    second = read(input, 7);
  }
  send(" all");
  third = read(input, 13);
  EXPECT_EQ(first + second + third, "a photo of us all");
  EXPECT_EQ(read(input, 0), "a ph");
  EXPECT_EQ(
      read(input, 4),
      "cannot be sent again, as there was no room for a copy of it: run the command once more");
  EXPECT_EQ(
      read(input, 13),
      "cannot be sent again, as there was no room for a copy of it: run the command once more");
}

// While it lives, temporary files go to another folder.
class TemporaryFiles {
 public:
  explicit TemporaryFiles(const std::filesystem::path& folder) {
    setenv("TMPDIR", folder.c_str(), 1);
  }
  ~TemporaryFiles() { setenv("TMPDIR", before.c_str(), 1); }
  TemporaryFiles(const TemporaryFiles&) = delete;
  TemporaryFiles& operator=(const TemporaryFiles&) = delete;

 private:
  const std::filesystem::path before = std::filesystem::temp_directory_path();
};

// The files that this process has open in a folder and that have no name there any more.
std::vector<int> namelessFilesIn(const std::filesystem::path& folder) {
  std::vector<int> found;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code gone;
    const std::string file = std::filesystem::read_symlink(entry, gone).string();
    if (file.starts_with(folder.string()) && file.ends_with(" (deleted)"))
      found.push_back(std::stoi(entry.path().filename()));
  }
  return found;
}

TEST_F(RereadableInputTest, IsKeptInTheTemporaryFolderOfTheEnvironment) {
  const test::TemporaryFolder place;
  const TemporaryFiles there(place.path());
  {
    RereadableInput input(out.get());
    send("a photo");
    EXPECT_EQ(read(input, 0), "a photo");
    EXPECT_EQ(read(input, 2), "photo");
    const std::vector<int> files = namelessFilesIn(place.path());
    ASSERT_EQ(files.size(), 1u);
    EXPECT_EQ(fcntl(files.front(), F_GETFD), FD_CLOEXEC);
    EXPECT_TRUE(std::filesystem::is_empty(place.path()));
  }
  EXPECT_TRUE(namelessFilesIn(place.path()).empty());
}

TEST_F(RereadableInputTest, IsReadOnceWithoutATemporaryFolder) {
  const TemporaryFiles nowhere("/nowhere");
  RereadableInput input(out.get());
  send("a photo");
  EXPECT_EQ(read(input, 0), "a photo");
  EXPECT_EQ(
      read(input, 0),
      "cannot be sent again, as there was no room for a copy of it: run the command once more");
}

TEST_F(RereadableInputTest, SaysWhyItCannotBeRead) {
  const FileDescriptor folder(open("/", O_RDONLY));
  RereadableInput input(folder.get());
  EXPECT_EQ(read(input, 0), "cannot be read: Is a directory");
}

}  // namespace
}  // namespace tavrin
