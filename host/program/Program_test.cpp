#include <array>
#include <cstdio>
#include <memory>
#include <sys/wait.h>

#include <gtest/gtest.h>

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
  expectRefusal("--frobnicate", 2, "'frobnicate'. See tavrin-print --help.");
  expectRefusal("-n none a.pdf", 2, "none");
  expectRefusal("a.pdf b.pdf", 2, "one document");
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

}  // namespace
}  // namespace tavrin
