#include "plugin/TraceLog.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <regex>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/fixtures/TemporaryFolder.h"

// The log is one for the whole process and opens once, so each example runs in a process of its
// own and leaves what it wrote in files.

namespace tavrin {
namespace {

class TraceLog : public testing::Test {
 protected:
  // Runs the example in a child with its standard error in a file.
  template <class Example>
  void inOtherProcess(Example example) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      if (std::freopen(path("stderr").c_str(), "w", stderr) == nullptr) _exit(2);
      example();
      _exit(gFileStream != nullptr ? 0 : 3);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status)) << "signal " << WTERMSIG(status);
    ASSERT_EQ(WEXITSTATUS(status), 0);
  }

  std::string path(const std::string& name) const { return (folder.path() / name).string(); }

  std::string content(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  // The messages of a log, one a line.
  std::string messages(const std::string& name) const {
    return std::regex_replace(content(name), std::regex(".* ## (.*)\n"), "$1|");
  }

  unsigned permissions(const std::string& name) const {
    struct stat file {};
    return stat(path(name).c_str(), &file) == 0 ? file.st_mode & 07777U : 0;
  }

  test::TemporaryFolder folder;
};

// A line at a place that does not matter.
template <class... Args>
void trace(const std::string& log, trace::Format<std::type_identity_t<Args>...> format,
           const Args&... arguments) {
  TraceLogBody("", "", "here", nullptr, 1, log.c_str(), format, arguments...);
}

TEST_F(TraceLog, ALineNamesTimePlaceAndMessage) {
  inOtherProcess([&] {
    TraceLogBody("", "", "initWithCallback:", nullptr, 120, path("log").c_str(), "PPD is null");
  });
  const std::regex line(
      "<\\d\\d:\\d\\d:\\d\\d\\.(0|[1-9]\\d{0,5})> : initWithCallback: in line:120 "
      "## PPD is null\n");
  EXPECT_TRUE(std::regex_match(content("log"), line)) << content("log");
}

TEST_F(TraceLog, TheTwoLeadingTextsComeFirst) {
  inOtherProcess([&] {
    TraceLogBody("Tavrin ", "[7]", "f", nullptr, -1, path("log").c_str(), "%@", OptString("x"));
  });
  EXPECT_TRUE(content("log").starts_with("Tavrin [7]<")) << content("log");
  EXPECT_TRUE(content("log").ends_with("> : f in line:-1 ## x\n")) << content("log");
}

TEST_F(TraceLog, TheTimeIsLocalTimeWithMicroseconds) {
  const auto now = [] {
    return std::chrono::duration_cast<std::chrono::microseconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
  };
  const auto before = now();
  inOtherProcess([&] {
    setenv("TZ", "TST-5:30", 1);
    tzset();
    trace(path("log"), "x");
  });
  const auto after = now();
  int hour = 0, minute = 0, second = 0;
  long micros = 0;
  ASSERT_EQ(std::sscanf(content("log").c_str(), "<%d:%d:%d.%ld>", &hour, &minute, &second, &micros),
            4);
  const auto ofDay = [](long long moment) {
    return (moment + (5 * 60 + 30) * 60'000'000LL) % 86'400'000'000LL;
  };
  const long long logged = ((hour * 60 + minute) * 60LL + second) * 1'000'000 + micros;
  const long long since = (logged - ofDay(before) + 86'400'000'000LL) % 86'400'000'000LL;
  EXPECT_LE(since, after - before);
}

TEST_F(TraceLog, MicrosecondsHaveNoLeadingZeros) {
  // Enough lines that some fall into the first tenth of a second.
  inOtherProcess([&] {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(1100);
    while (std::chrono::steady_clock::now() < end) {
      trace(path("log"), "x");
      usleep(5000);
    }
  });
  const std::string log = content("log");
  const std::regex field("<\\d\\d:\\d\\d:\\d\\d\\.(\\d+)>");
  int shortFields = 0;
  for (auto found = std::sregex_iterator(log.begin(), log.end(), field);
       found != std::sregex_iterator(); ++found) {
    const std::string digits = (*found)[1];
    EXPECT_TRUE(digits == "0" || digits[0] != '0') << digits;
    shortFields += digits.size() < 6 ? 1 : 0;
  }
  EXPECT_GT(shortFields, 0);
}

TEST_F(TraceLog, EveryLineIsOnDiskAtOnce) {
  inOtherProcess([&] {
    trace(path("log"), "first");
    if (messages("log") != "first|") _exit(4);
    trace(path("log"), "second");
    if (messages("log") != "first|second|") _exit(5);
  });
}

// --- Opening ---

TEST_F(TraceLog, TheFileIsOpenToEverybodyWhateverTheMask) {
  for (const mode_t mask : {mode_t{0}, mode_t{022}, mode_t{077}, mode_t{0777}}) {
    const std::string name = "log" + std::to_string(mask);
    inOtherProcess([&] {
      umask(mask);
      trace(path(name), "x");
    });
    EXPECT_EQ(permissions(name), 0666U) << std::oct << mask;
    EXPECT_EQ(messages(name), "x|");
  }
}

TEST_F(TraceLog, AFileThatIsThereIsAppendedToAndOpened) {
  std::ofstream(path("log")) << "old\n";
  chmod(path("log").c_str(), 0600);
  inOtherProcess([&] { trace(path("log"), "new"); });
  EXPECT_TRUE(content("log").starts_with("old\n<"));
  EXPECT_EQ(permissions("log"), 0666U);
}

TEST_F(TraceLog, NothingIsOpenedBeforeTheFirstLine) {
  EXPECT_EQ(gFileStream, nullptr);
  EXPECT_FALSE(std::filesystem::exists(path("log")));
}

TEST_F(TraceLog, ThePathOfALaterLineIsIgnored) {
  inOtherProcess([&] {
    trace(path("log"), "first");
    trace(path("other"), "second");
    TraceLogBody("", "", "here", nullptr, 1, nullptr, "third");
  });
  EXPECT_EQ(messages("log"), "first|second|third|");
  EXPECT_FALSE(std::filesystem::exists(path("other")));
  EXPECT_EQ(content("stderr"), "");
}

TEST_F(TraceLog, WithoutAPathAllLinesGoToStandardError) {
  inOtherProcess([&] {
    TraceLogBody("", "", "here", nullptr, 1, nullptr, "first");
    trace(path("log"), "second");
  });
  EXPECT_EQ(messages("stderr"), "first|second|");
  EXPECT_FALSE(std::filesystem::exists(path("log")));
}

TEST_F(TraceLog, AFileThatCannotBeOpenedMeansStandardErrorForGood) {
  for (const std::string& unusable : {path("missing/log"), folder.path().string(), std::string()}) {
    inOtherProcess([&] {
      trace(unusable, "first");
      trace(path("log"), "second");
    });
    EXPECT_EQ(messages("stderr"), "first|second|") << unusable;
    EXPECT_FALSE(std::filesystem::exists(path("log")));
  }
}

TEST_F(TraceLog, TheLogCanBeOpenedBeforehand) {
  inOtherProcess([&] {
    traceOpenLog(path("log").c_str());
    if (gFileStream == nullptr || gFileStream == stderr) _exit(4);
    trace(path("other"), "x");
  });
  EXPECT_EQ(messages("log"), "x|");
  inOtherProcess([] {
    traceOpenLog(nullptr);
    if (gFileStream != stderr) _exit(4);
  });
}

// A change of permissions that fails (here: on a device of somebody else's) is nobody's business.
TEST_F(TraceLog, AFailedChangeOfPermissionsIsIgnored) {
  inOtherProcess([] { trace("/dev/full", "x"); });
  EXPECT_EQ(content("stderr"), "");
}

// --- Messages ---

TEST_F(TraceLog, TheObjectDirectiveTakesStringsAndAbsentOnes) {
  inOtherProcess([&] {
    const OptString absent;
    const std::string text = "Grün %d";
    trace(path("log"), "%@, %@, %@, %@", OptString("IronOn"), absent, text,
          std::string_view(text).substr(0, 2));
    trace(path("log"), "%@|%@", OptString(""), "literal");
  });
  EXPECT_EQ(messages("log"), "IronOn, (null), Grün %d, Gr||literal|");
}

TEST_F(TraceLog, PrintfsDirectives) {
  inOtherProcess([&] {
    const char* none = nullptr;
    trace(path("log"), "%d %5d|%-5d|%05d %+d %i", 1, 2, 3, 4, 5, -6);
    trace(path("log"), "%u %x %X %#o", 7U, 255, 255U, 8);
    trace(path("log"), "%.2f %8.3e %g", 3.14159, 1000.0, 0.5F);
    trace(path("log"), "%s %10s|%-4s|%.2s %s", "a", "b", "c", "defg", none);
    trace(path("log"), "%c%c 100%%", 'o', 'k');
    trace(path("log"), "%p", static_cast<const void*>(nullptr));
  });
  EXPECT_EQ(messages("log"),
            "1     2|3    |00004 +5 -6|7 ff FF 010|3.14 1.000e+03 0.5|a          b|c   |de (null)|"
            "ok 100%|(nil)|");
}

TEST_F(TraceLog, NumbersAreAsWideAsTheirType) {
  inOtherProcess([&] {
    using Long = std::numeric_limits<long long>;
    trace(path("log"), "%d %ld %lld", Long::min(), Long::max(), short{-3});
    trace(path("log"), "%u", std::numeric_limits<unsigned long long>::max());
    trace(path("log"), "%x %u %lx", -1, short{-1}, -1LL);
    trace(path("log"), "%d %zu %d", true, std::size_t{9}, std::uint8_t{200});
    enum class Kind : unsigned char { last = 255 };
    trace(path("log"), "%d %x", Kind::last, Kind::last);
  });
  EXPECT_EQ(messages("log"),
            "-9223372036854775808 9223372036854775807 -3|18446744073709551615|"
            "ffffffff 4294967295 ffffffffffffffff|1 9 200|255 ff|");
}

TEST_F(TraceLog, AnArrayIsReadToItsEndAtMost) {
  inOtherProcess([&] {
    const char open[3] = {'a', 'b', 'c'};
    const char closed[8] = "de";
    trace(path("log"), "%s %@ %s", open, open, closed);
  });
  EXPECT_EQ(messages("log"), "abc abc de|");
}

TEST_F(TraceLog, AnArgumentIsNoFormat) {
  inOtherProcess([&] { trace(path("log"), "%s %@", "%n%s%d", std::string("%999999999d%@")); });
  EXPECT_EQ(messages("log"), "%n%s%d %999999999d%@|");
}

TEST_F(TraceLog, AMessageThatIsNoUTF8IsNotWritten) {
  inOtherProcess([&] {
    trace(path("log"), "%s", "caf\xE9");
    trace(path("log"), "%@", std::string("\xC3"));
    trace(path("log"), "%c", '\xFF');
    trace(path("log"), "%.1s", "é");
    trace(path("log"), "%s", "café");
  });
  EXPECT_EQ(messages("log"), "café|");
}

TEST_F(TraceLog, AMessageGivesNoOrdersToATerminal) {
  inOtherProcess([&] { trace(path("log"), "%s", "\x1B[2J\u202Egol"); });
  EXPECT_EQ(messages("log"), "\\u001b[2J\\u202egol|");
}

TEST_F(TraceLog, ALongMessageIsWrittenWhole) {
  const std::string text(1024 * 1024, 'x');
  inOtherProcess([&] { trace(path("log"), "%@!", text); });
  EXPECT_TRUE(content("log").ends_with("## " + text + "!\n"));
}

TEST_F(TraceLog, NullTextsAtThePlaceAreEmpty) {
  inOtherProcess(
      [&] { TraceLogBody(nullptr, nullptr, nullptr, nullptr, 2, path("log").c_str(), "x"); });
  EXPECT_TRUE(content("log").ends_with("> :  in line:2 ## x\n")) << content("log");
}

}  // namespace
}  // namespace tavrin
