#include "host/printer/PPDLoader.h"

#include <cstring>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "host/printer/PPDLimits.h"
#include "tests/fakes/FakePPD.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class PPDLoaderTest : public testing::Test {
 protected:
  fs::path write(const std::string& text) const { return place.write("a.ppd", text); }
  // The same, compressed.
  fs::path writeCompressed(const std::string& text) const {
    const fs::path file = place.path() / "a.ppd.gz";
    const CupsFilePtr stream(cupsFileOpen(file.c_str(), "w9"));
    cupsFileWrite(stream.get(), text.data(), text.size());
    return file;
  }
  std::string problem(const fs::path& file) const {
    const auto ppd = loadPPD(file);
    return ppd ? "" : ppd.reason();
  }

  test::TemporaryFolder place;
};

TEST_F(PPDLoaderTest, LoadsAPPDAndMarksNothing) {
  const auto ppd = loadPPD(write(ppdText({paperTypeOption()})));
  ASSERT_TRUE(ppd) << ppd.reason();
  EXPECT_NE(ppdFindOption(ppd->get(), "MediaType"), nullptr);
  EXPECT_EQ(ppdFindMarkedChoice(ppd->get(), "MediaType"), nullptr);
}

TEST_F(PPDLoaderTest, LoadsACompressedPPD) {
  const auto ppd = loadPPD(writeCompressed(ppdText({paperTypeOption()})));
  ASSERT_TRUE(ppd) << ppd.reason();
  EXPECT_NE(ppdFindOption(ppd->get(), "MediaType"), nullptr);
}

TEST_F(PPDLoaderTest, LeavesNoFileOpen) {
  const auto openFiles = [] {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
  };
  const fs::path file = write(ppdText({}));
  const auto before = openFiles();
  ASSERT_TRUE(loadPPD(file));
  EXPECT_FALSE(loadPPD(place.write("b.ppd", "no ppd")));
  EXPECT_EQ(openFiles(), before);
}

TEST_F(PPDLoaderTest, NamesAnEncodingWhereTheFileNamesNone) {
  const std::string text =
      "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
      "*ModelName: \"T\"\n*Manufacturer: \"T\"\n";
  const auto ppd = loadPPD(write(text));
  ASSERT_TRUE(ppd) << ppd.reason();
  EXPECT_STREQ((*ppd)->lang_encoding, "UTF-8");
}

TEST_F(PPDLoaderTest, EndsLongTextsWithAWholeCharacter) {
  for (std::size_t ascii = 0; ascii < 4; ++ascii) {
    std::string longText(ascii, 'x');
    for (int i = 0; i < 40; ++i) longText += "紙";  // three bytes each
    const auto ppd = loadPPD(write(ppdText(
        {{"MediaType/" + longText, "PickOne", "Plain", {"Plain/" + longText, "IronOn/Short"}}},
        {"*LanguageEncoding: UTF-8"})));
    ASSERT_TRUE(ppd) << ppd.reason();
    const ppd_option_t* option = ppdFindOption(ppd->get(), "MediaType");
    const std::string expected = longText.substr(0, ascii + (80 - ascii) / 3 * 3);
    EXPECT_EQ(option->text, expected);
    EXPECT_EQ(option->choices[0].text, expected);
    EXPECT_STREQ(option->choices[1].text, "Short");
  }
}

TEST_F(PPDLoaderTest, LeavesALongTextThatFits) {
  const std::string exact = std::string(77, 'x') + "紙";
  const auto ppd = loadPPD(write(ppdText({{"MediaType/T", "PickOne", "Plain", {"Plain/" + exact}}},
                                         {"*LanguageEncoding: UTF-8"})));
  ASSERT_TRUE(ppd) << ppd.reason();
  EXPECT_EQ(ppdFindOption(ppd->get(), "MediaType")->choices[0].text, exact);
}

TEST_F(PPDLoaderTest, NamesTheFileTheLineAndTheReason) {
  const fs::path file = write("*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\nno asterisk\n");
  EXPECT_EQ(problem(file), "The printer description \"" + file.string() +
                               "\" cannot be read, line 3: Missing asterisk in column 1.");
}

TEST_F(PPDLoaderTest, RefusesWhatIsNoFile) {
  EXPECT_EQ(problem("/nowhere/a.ppd"),
            "The printer description \"/nowhere/a.ppd\" cannot be opened: No such file or "
            "directory.");
  EXPECT_EQ(problem("/dev/zero"), "The printer description \"/dev/zero\" is not a file.");
  EXPECT_NE(problem(place.path()).find("is not a file."), std::string::npos);
  EXPECT_FALSE(problem(write("")).empty());
}

TEST_F(PPDLoaderTest, DoesNotWaitForAFIFO) {
  const fs::path fifo = place.path() / "fifo";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  EXPECT_EQ(problem(fifo), "The printer description \"" + fifo.string() + "\" is not a file.");
}

TEST_F(PPDLoaderTest, RefusesAFileThatIsTooLarge) {
  const fs::path file = write(ppdText({}));
  fs::resize_file(file, kPPDFileLimit + 1);
  EXPECT_EQ(problem(file),
            "The printer description \"" + file.string() + "\" is larger than 4 MiB.");
}

TEST_F(PPDLoaderTest, RefusesAFileThatUnpacksToTooMuch) {
  const fs::path file = writeCompressed(ppdText({}) + std::string(kPPDTextLimit, '\n'));
  ASSERT_LT(fs::file_size(file), kPPDFileLimit / 100);
  EXPECT_EQ(problem(file),
            "The printer description \"" + file.string() + "\" unpacks to more than 16 MiB.");
}

TEST_F(PPDLoaderTest, RefusesAFileThatWouldTakeTooLongToRead) {
  std::string resolvers;
  for (int i = 0; i < 20000; ++i)
    resolvers += "*cupsUIResolver r" + std::to_string(i) + ": \"*A y *B y\"\n" +
                 "*cupsUIConstraints r" + std::to_string(i) + ": \"*A x *B x\"\n";
  const fs::path file = write(ppdText({}) + resolvers);
  EXPECT_EQ(problem(file), "The printer description \"" + file.string() +
                               "\" has more than 2000 statements \"*cupsUIResolver\", which would "
                               "take too long to read.");
}

}  // namespace
}  // namespace tavrin
