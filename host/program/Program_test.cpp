#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <gtest/gtest.h>

#include "platform/files/FileDescriptor.h"
#include "tests/fixtures/TemporaryFolder.h"

// The program itself, where it needs no display: what it says and how it ends.

namespace tavrin {
namespace {

struct Run {
  int status = -1;
  std::string text;  // standard output and standard error
};

Run run(const std::string& arguments, const std::string& environment = "") {
  const std::string command = "unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM; " + environment +
                              " " TAVRIN_PRINT " " + arguments + " 2>&1 </dev/null";
  const auto close = [](FILE*) {};
  const std::unique_ptr<FILE, decltype(close)> pipe(popen(command.c_str(), "r"), close);
  Run result;
  std::array<char, 4096> buffer;
  while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), pipe.get()))
    result.text.append(buffer.data(), size);
  result.status = WEXITSTATUS(pclose(pipe.get()));
  return result;
}

void expectRefusal(const std::string& arguments, int status, const std::string& words) {
  const Run result = run(arguments);
  EXPECT_EQ(result.status, status) << arguments << ": " << result.text;
  EXPECT_NE(result.text.find(words), std::string::npos) << result.text;
  EXPECT_EQ(result.text.rfind("tavrin-print: ", 0), 0u) << result.text;
}

TEST(Program, TellsHowItIsUsed) {
  EXPECT_EQ(run("--help").status, 0);
  EXPECT_EQ(run("--help").text.rfind("Usage: tavrin-print", 0), 0u);
  EXPECT_EQ(run("--version").status, 0);
  EXPECT_EQ(run("--version").text.rfind("tavrin-print ", 0), 0u);
}

TEST(Program, RefusesWrongUsage) {
  expectRefusal("--frobnicate", 2, "\"frobnicate\". See tavrin-print --help.");
  expectRefusal("-n none a.pdf", 2, "none");
  expectRefusal("- -", 2, "only one of the documents");
  expectRefusal("--ppd '' a.pdf", 2, "--ppd needs a value.");
  expectRefusal("-d '' a.pdf", 2, "-d needs a value.");
}

TEST(Program, NamesADocumentThatCannotBePrinted) {
  const test::TemporaryFolder place;
  place.write("empty.pdf", "");
  expectRefusal("--sample " + (place.path() / "missing.pdf").string(), 3, "missing.pdf");
  expectRefusal("--sample " + (place.path() / "empty.pdf").string(), 3, "empty.pdf");
  expectRefusal("--sample " + place.path().string(), 3, place.path().filename().string());
}

TEST(Program, TakesADocumentWhoseNameIsNotUtf8) {
  const test::TemporaryFolder place;
  const std::string document = place.write("caf\xE9.pdf", "%PDF-1.4 a card").string();
  expectRefusal("--sample " + document, 3, "There is no display");
}

TEST(Program, NamesABrokenPrinterDescription) {
  const test::TemporaryFolder place;
  const std::string ppd = place.write("broken.ppd", "*PPD-Adobe: \"4.3\"\nno keyword\n").string();
  expectRefusal("--ppd " + ppd + " " SAMPLE_DOCUMENT, 3, "broken.ppd");
  expectRefusal("--ppd " + ppd + " " SAMPLE_DOCUMENT, 3, "line 2");
  expectRefusal("--ppd " + (place.path() / "gone.ppd").string() + " " SAMPLE_DOCUMENT, 3,
                "gone.ppd");
}

TEST(Program, SaysThatThereIsNoDisplay) {
  expectRefusal("--sample", 3, "There is no display");
  const auto dead = run("--sample", "DISPLAY=:99999 QT_QPA_PLATFORM=xcb");
  EXPECT_EQ(dead.status, 3);
  EXPECT_NE(dead.text.find("tavrin-print: There is no display"), std::string::npos) << dead.text;
}

TEST(Program, SavesTheSheetsWithoutADisplay) {
  const test::TemporaryFolder place;
  const std::string file = (place.path() / "sheets.pdf").string();
  const std::string command =
      "--no-dialog --save " + file + " --ppd " SAMPLE_PRINTERS "/tavrin-r420.ppd -o number-up=2 ";
  const auto saved = run(command + SAMPLE_DOCUMENT " " SAMPLE_DOCUMENT);
  EXPECT_EQ(saved.status, 0) << saved.text;
  EXPECT_EQ(saved.text, "The sheets were saved as " + file + ".\n");
  const std::string sheets = test::textOf(file);
  EXPECT_TRUE(sheets.starts_with("%PDF-"));
  expectRefusal(command + SAMPLE_DOCUMENT, 3, "There is a file \"" + file + "\" already");
  EXPECT_EQ(test::textOf(file), sheets);
}

TEST(Program, SaysWhyNothingIsSaved) {
  const test::TemporaryFolder place;
  const std::string command = "--no-dialog --save " + (place.path() / "new.pdf").string() + " ";
  expectRefusal(command + "-o page-ranges=9 " SAMPLE_DOCUMENT, 3, "has only one page");
  expectRefusal(command + "-o page-ranges=3-1 " SAMPLE_DOCUMENT, 3, "3-1");
  expectRefusal(command + place.write("cut.pdf", "%PDF-1.4\ncut off").string(), 3, "damaged");
  expectRefusal("--no-dialog --save /nowhere/new.pdf " SAMPLE_DOCUMENT, 3, "/nowhere/new.pdf");
  EXPECT_FALSE(std::filesystem::exists(place.path() / "new.pdf"));
}

// Where windows would come up: a display that hears who asks for one, and shows none.
class Display {
 public:
  Display() : listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* any = reinterpret_cast<sockaddr*>(&address);
    EXPECT_EQ(bind(listener.get(), any, size), 0);
    EXPECT_EQ(listen(listener.get(), 1), 0);
    EXPECT_EQ(getsockname(listener.get(), any, &size), 0);
  }

  // As DISPLAY has it.
  std::string name() const {
    constexpr int kFirstPort = 6000;
    return "127.0.0.1:" + std::to_string(ntohs(address.sin_port) - kFirstPort);
  }
  // Whether a program asks for a window within that time.
  bool isAsked(int milliseconds) const {
    pollfd waiting{listener.get(), POLLIN, 0};
    return poll(&waiting, 1, milliseconds) == 1;
  }

 private:
  FileDescriptor listener;
  sockaddr_in address{};
};

class LaunchedProgram : public testing::Test {
 protected:
  // As a launcher does it: without a terminal, and with a log that nobody reads.
  int launch(const std::string& arguments) const {
    const std::string command = "unset WAYLAND_DISPLAY QT_QPA_PLATFORM; DISPLAY=" + display.name() +
                                " setsid -w " TAVRIN_PRINT " " + arguments + " </dev/null >" +
                                log.string() + " 2>&1";
    return WEXITSTATUS(std::system(command.c_str()));
  }

  test::TemporaryFolder place;
  std::filesystem::path log = place.path() / "log";
  Display display;
};

TEST_F(LaunchedProgram, SaysInAWindowWhatIsWrong) {
  const std::string document = (place.path() / "missing.pdf").string();
  EXPECT_EQ(launch("--sample " + document), 3) << "at once, whoever closes the window";
  EXPECT_EQ(test::textOf(log), "tavrin-print: The document \"" + document +
                                   "\" cannot be read: No such file or directory.\n");
  EXPECT_TRUE(display.isAsked(20'000));
}

TEST_F(LaunchedProgram, OpensNoWindowWhereItsOutputIsRead) {
  const auto result = run("--frobnicate", "DISPLAY=" + display.name() + " setsid -w");
  EXPECT_EQ(result.status, 2);
  EXPECT_FALSE(display.isAsked(500));
}

}  // namespace
}  // namespace tavrin
