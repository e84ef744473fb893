#include <array>
#include <cstdio>
#include <memory>
#include <ostream>
#include <sys/wait.h>

#include <gtest/gtest.h>

#include "tests/fixtures/DefaultSignals.h"
#include "tests/fixtures/TemporaryFolder.h"

// What a person sees of a program that is started badly, and what is left in the current folder.

namespace tavrin {
namespace {

struct Row {
  const char* name;
  const char* command;  // for the shell, with its descriptor 3 for what is seen
  int status;
  const char* seen;  // part of it
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

#define PRINT TAVRIN_PRINT " "
#define REPLAY TAVRIN_REPLAY " "
#define SEEN " 2>&3 "  // what the program says on standard error

// The sample's dialog, and the wait until it listens to a signal, which is a bit of what it
// catches. A program that is gone is not waited for, and one that never listens not for long.
#define SAMPLE "QT_QPA_PLATFORM=offscreen " PRINT "--sample" SEEN "& "
#define IS_DEAF_TO(bit) "[ $((0x0$(sed -n 's/^SigCgt:.//p' /proc/$!/status) & " bit ")) -eq 0 ]"
#define UNTIL_IT_HEARS(bit) \
  "for try in $(seq 999); do kill -0 $! && " IS_DEAF_TO(bit) " || break; sleep 0.02; done; "
#define TERM "0x4000"
#define HUP "0x1"

constexpr Row kRows[] = {
    {"NoInput", PRINT "--sample -" SEEN "<&-", 2, "Standard input is closed"},
    {"NoInputAndNoName", PRINT SEEN "<&-", 2, "Standard input is closed"},
    {"InputThatIsNotForReading", PRINT "-" SEEN "0>out", 2, "Standard input is closed"},
    {"NoInputForAFile", PRINT "gone.pdf" SEEN "<&-", 3, "gone.pdf\" cannot be read: No such file"},
    {"NoOutput", PRINT "--version" SEEN ">&-", 3, "Standard output cannot be written: Bad file"},
    {"FullOutput", PRINT "--help" SEEN ">/dev/full", 3, "cannot be written: No space left"},
    {"NoErrorOutput", PRINT "gone.pdf 2>&-", 3, ""},
    {"NoDescriptorAtAll", PRINT "--version <&- >&- 2>&-", 3, ""},
    {"OrdersToTheTerminal", PRINT "\"$(printf 'x\\033[2J\\302\\2332J.pdf')\"" SEEN, 3,
     "x\\u001b[2J\\u009b2J.pdf"},
    {"TextThatRunsBackwards", PRINT "\"$(printf 'x\\342\\200\\256fdp.exe')\"" SEEN, 3,
     "x\\u202efdp.exe"},
    {"NameThatIsNoUtf8", PRINT "\"$(printf 'caf\\351.pdf')\"" SEEN, 3, "caf\\xe9.pdf"},
    {"EmptyFileOfTheKernel", PRINT "/dev/null" SEEN, 3, "is a device, not a file"},
    {"EndedWhileItWaits", SAMPLE UNTIL_IT_HEARS(TERM) "kill $!; wait $!", 1, ""},
    {"HungUpOnWhileItWaits", SAMPLE UNTIL_IT_HEARS(HUP) "kill -HUP $!; wait $!", 1, ""},
    {"EndedWithItsSession",
     SAMPLE UNTIL_IT_HEARS(HUP) "kill -HUP $!; sleep 0.001; kill $!; wait $!", 1, ""},

    {"NoScript", REPLAY SEEN "<&-", 2, "Standard input is closed, so there is no script"},
    {"NoRepliesPossible", "echo '{\"do\": \"state\"}' |" REPLAY SEEN ">/dev/full", 2,
     "Standard output cannot be written: No space left"},
    {"NoHelpPossible", REPLAY "--help" SEEN ">&-", 2,
     "Standard output cannot be written: Bad file"},
    {"OrdersToTheTerminalInAReply",
     "printf '{\"do\": \"\\302\\2332J\\342\\200\\256\"}' |" REPLAY ">&3", 1,
     "There is no command \\\"\\u009b2J\\u202e\\\""},
    {"DeepScript", "head -c 1000000 /dev/zero | tr '\\0' '[' |" REPLAY ">&3", 1, "nested too deep"},
    {"LongScript", "head -c 2000000 /dev/zero | tr '\\0' 'x' |" REPLAY ">&3", 1, "is too long"},
};

class ProgramFaults : public testing::TestWithParam<Row> {
 protected:
  // Runs the command in an empty folder, without a display.
  void run() {
    const std::string command = "unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM; cd " +
                                place.path().string() + "; exec 3>&1; " + GetParam().command;
    const auto close = [](FILE*) {};
    const std::unique_ptr<FILE, decltype(close)> pipe(start(command), close);
    std::array<char, 4096> buffer;
    while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), pipe.get()))
      seen.append(buffer.data(), size);
    status = WEXITSTATUS(pclose(pipe.get()));
  }

  static FILE* start(const std::string& command) {
    const test::DefaultSignals inherited;
    return popen(command.c_str(), "r");
  }

  test::TemporaryFolder place;
  std::string seen;
  int status = -1;
};

TEST_P(ProgramFaults, AreSeenAndLeaveNothingBehind) {
  run();
  EXPECT_EQ(status, GetParam().status) << seen;
  EXPECT_NE(seen.find(GetParam().seen), std::string::npos) << seen;
  EXPECT_EQ(seen.find('\x1B'), std::string::npos);
  std::filesystem::remove(place.path() / "out");  // the command's own
  EXPECT_TRUE(std::filesystem::is_empty(place.path()));
}

INSTANTIATE_TEST_SUITE_P(Table, ProgramFaults, testing::ValuesIn(kRows),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace tavrin
