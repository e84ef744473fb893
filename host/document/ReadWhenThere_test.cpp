#include "host/document/ReadWhenThere.h"

#include <array>
#include <chrono>
#include <fcntl.h>
#include <string>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/files/FileDescriptor.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

// What a call that fills a buffer has found.
template <class Read>
std::string found(Read read) {
  std::string text(100, '\0');
  const Cancellable<std::size_t> bytes = read(std::span<char>(text));
  if (!bytes) return bytes.cancelled() ? "cancelled" : bytes.reason();
  text.resize(*bytes);
  return text;
}

class ReadWhenThereTest : public testing::Test {
 protected:
  ReadWhenThereTest() {
    std::array<int, 2> ends{};
    EXPECT_EQ(pipe(ends.data()), 0);
    out = FileDescriptor(ends[0]);
    in = FileDescriptor(ends[1]);
  }
  void send(const std::string& text) const {
    EXPECT_EQ(::write(in.get(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  static std::string readWhenThereFrom(const FileDescriptor& file) {
    return found([&](std::span<char> buffer) {
      return readWhenThere(file.get(), buffer, neverCancelled());
    });
  }
  static std::string readAtOnceFrom(const FileDescriptor& file) {
    return found([&](std::span<char> buffer) { return readAtOnce(file.get(), buffer); });
  }

  FileDescriptor out, in;
};

TEST_F(ReadWhenThereTest, WaitsForWhoeverFillsAPipe) {
  std::thread writer([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));  // longer than one look takes
    send("a photo");
  });
  EXPECT_EQ(readWhenThereFrom(out), "a photo");
  writer.join();
}

// A pipe stands for /proc/kmsg, which is a regular file and yet has nothing to read.
TEST_F(ReadWhenThereTest, AtOnceIsNotForWhatIsNotThereYet) {
  EXPECT_EQ(readAtOnceFrom(out), "cannot be read: it holds nothing yet");
  ASSERT_EQ(fcntl(out.get(), F_SETFL, O_NONBLOCK), 0);
  EXPECT_EQ(readAtOnceFrom(out), "cannot be read: it holds nothing yet");
  send("a photo");
  EXPECT_EQ(readAtOnceFrom(out), "a photo");
}

TEST_F(ReadWhenThereTest, EndsWhereAFileEnds) {
  const test::TemporaryFolder place;
  const FileDescriptor file(open(place.write("a.txt", "a photo").c_str(), O_RDONLY | O_CLOEXEC));
  EXPECT_EQ(readWhenThereFrom(file), "a photo");
  EXPECT_EQ(readWhenThereFrom(file), "");
}

}  // namespace
}  // namespace tavrin
