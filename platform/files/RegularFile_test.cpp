#include "platform/files/RegularFile.h"

#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

TEST(RegularFile, IsReadUpToItsLimit) {
  const test::TemporaryFolder folder;
  const std::string bytes("a\0b", 3);
  const auto file = folder.write("file", bytes);
  EXPECT_EQ(readRegularFile(file, 3), bytes);
  EXPECT_FALSE(readRegularFile(file, 2));
  EXPECT_EQ(readRegularFile(folder.write("empty", ""), 0), "");
}

TEST(RegularFile, MayBeReachedThroughALink) {
  const test::TemporaryFolder folder;
  folder.write("file", "text");
  std::filesystem::create_symlink("file", folder.path() / "link");
  EXPECT_EQ(readRegularFile(folder.path() / "link", 10), "text");
}

TEST(RegularFile, IsNothingElse) {
  const test::TemporaryFolder folder;
  const auto fifo = folder.path() / "fifo";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  std::filesystem::create_symlink("/dev/zero", folder.path() / "device");
  std::filesystem::create_symlink("/dev/tty", folder.path() / "terminal");
  std::filesystem::create_symlink("circle", folder.path() / "circle");
  for (const char* name : {"fifo", "device", "terminal", "circle", "missing", ".", "fifo/x", ""}) {
    EXPECT_FALSE(readRegularFile(folder.path() / name, 100)) << name;
  }
  EXPECT_FALSE(readRegularFile("", 100)) << "the path that names nothing";
}

// Root reads everything, so the test becomes somebody else for a moment.
TEST(RegularFile, IsAbsentWhenItMayNotBeRead) {
  const test::TemporaryFolder folder;
  const auto file = folder.write("secret", "text");
  std::filesystem::permissions(file, std::filesystem::perms::none);
  const uid_t before = geteuid();
  ASSERT_EQ(before == 0 ? seteuid(65534) : 0, 0);
  const auto read = readRegularFile(file, 100);
  ASSERT_EQ(seteuid(before), 0);
  EXPECT_FALSE(read);
}

}  // namespace
}  // namespace tavrin
