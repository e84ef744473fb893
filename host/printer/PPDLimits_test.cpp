#include "host/printer/PPDLimits.h"

#include <gtest/gtest.h>

#include "ppd/CupsHandles.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

std::string brokenBy(const std::string& text) {
  const test::TemporaryFolder place;
  const CupsFilePtr file(cupsFileOpen(place.write("a.ppd", text).c_str(), "r"));
  std::string lines;
  return brokenPPDLimit(*file, lines);
}

std::string lines(std::size_t count, const std::string& line) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += line + "\n";
  return text;
}

TEST(PPDLimits, AreForStatementsOfAKeywordWhateverItsCase) {
  const std::string most = lines(kPPDKeywordLimit - 1, "*PageSize A4/A4: \"\"") + "*pagesize: x\n";
  EXPECT_EQ(brokenBy(most), "");
  EXPECT_EQ(brokenBy(most + "*PAGESIZE/Size: x"),
            "has more than 2000 statements \"*PAGESIZE\", which would take too long to read");
}

TEST(PPDLimits, AreForAllStatementsTogether) {
  std::string text;
  for (std::size_t i = 0; i < kPPDStatementLimit; ++i) text += "*K" + std::to_string(i) + ": x\n";
  EXPECT_EQ(brokenBy(text), "");
  EXPECT_EQ(brokenBy(text + "*More: x\n"),
            "has more than 50000 statements, which would take too long to read");
}

TEST(PPDLimits, AreForTheBytesOfTheText) {
  EXPECT_EQ(brokenBy(std::string(kPPDTextLimit, ' ')), "");
  EXPECT_EQ(brokenBy(std::string(kPPDTextLimit + 1, '\0')), "unpacks to more than 16 MiB");
}

TEST(PPDLimits, AreNotForWhatIsQuickToRead) {
  for (const char* line : {"*UIConstraints: *A x *B y", "*NonUIConstraints: *A x *B y", "*End",
                           "*% a remark", "code of a choice", ""})
    EXPECT_EQ(brokenBy(lines(kPPDStatementLimit + 1, line)), "") << line;
}

}  // namespace
}  // namespace tavrin
