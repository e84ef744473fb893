#include "host/program/CommandLine.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

std::string refusal(const std::vector<std::string>& arguments) {
  const Result<CommandLine> line = parseCommandLine(arguments);
  return line ? "" : line.reason();
}

TEST(CommandLine, MeansWhatItMeansToLp) {
  const auto line = parseCommandLine({"-d", "office/draft", "-n", "3", "-t", "A card", "-o",
                                      "MediaType=IronOn sides=one-sided", "-o", "Mirror", "-o",
                                      "mediatype=Plain", "card.pdf"});
  ASSERT_TRUE(line) << line.reason();
  EXPECT_EQ(line->job.printer, "office");
  EXPECT_EQ(line->job.instance, "draft");
  EXPECT_EQ(line->job.copies, 3);
  EXPECT_EQ(line->job.title, "A card");
  EXPECT_EQ(line->job.document, "card.pdf");
  EXPECT_EQ(optionValue(line->job.options, "MediaType"), "Plain");
  EXPECT_EQ(optionValue(line->job.options, "sides"), "one-sided");
  EXPECT_EQ(optionValue(line->job.options, "Mirror"), "true");
}

TEST(CommandLine, TakesValuesWithoutABlank) {
  const auto line = parseCommandLine({"-doffice", "-n2", "-"});
  ASSERT_TRUE(line) << line.reason();
  EXPECT_EQ(line->job.printer, "office");
  EXPECT_EQ(line->job.copies, 2);
  EXPECT_TRUE(line->namesDocument);
}

TEST(CommandLine, WithoutAFileIsForStandardInput) {
  const auto line = parseCommandLine({});
  ASSERT_TRUE(line);
  EXPECT_EQ(line->job.document, "-");
  EXPECT_FALSE(line->namesDocument);
}

TEST(CommandLine, TakesSeveralDocuments) {
  const auto line = parseCommandLine({"a.pdf", "b.jpg", "-"});
  ASSERT_TRUE(line);
  EXPECT_EQ(line->job.document, "a.pdf");
  EXPECT_EQ(line->furtherDocuments, (std::vector<std::filesystem::path>{"b.jpg", "-"}));
}

TEST(CommandLine, SavesWithoutADialog) {
  const auto line = parseCommandLine({"--no-dialog", "--save", "new.pdf", "-d", "tav", "a.pdf"});
  ASSERT_TRUE(line);
  EXPECT_TRUE(line->withoutDialog);
  EXPECT_EQ(line->save, "new.pdf");
}

TEST(CommandLine, TakesWhateverBytesItIsMadeOf) {
  for (const std::string name : {"caf\xE9", "d\u00FCnn \u65E5\u672C \U0001F5A8", "\x80\xFF\xC3"}) {
    const auto job =
        parseCommandLine({"-d" + name + "/" + name, "-t", name, "-o", "note='" + name + "'", name});
    ASSERT_TRUE(job) << job.reason();
    EXPECT_EQ(job->job.printer, name);
    EXPECT_EQ(job->job.instance, name);
    EXPECT_EQ(job->job.title, name);
    EXPECT_EQ(job->job.document, name);
    EXPECT_EQ(optionValue(job->job.options, "note"), name);
    const auto folders = parseCommandLine({"--ppd=" + name, "--output", name});
    ASSERT_TRUE(folders) << folders.reason();
    EXPECT_EQ(folders->ppd, name);
    EXPECT_EQ(folders->output, name);
  }
}

TEST(CommandLine, IsQuotedInUtf8) {
  EXPECT_EQ(
      refusal({"-n", "\u00FC"}),
      "“\u00FC” is not a number of copies; a job has 1 to 9999 copies. See tavrin-print --help.");
  EXPECT_EQ(
      refusal({"-n", "\xFC"}),
      "“\uFFFD” is not a number of copies; a job has 1 to 9999 copies. See tavrin-print --help.");
  EXPECT_EQ(refusal({"--d\u00FCnn"}), "Unknown option \"d\u00FCnn\". See tavrin-print --help.");
}

TEST(CommandLine, ThatCannotBeIsRefusedWithTheReason) {
  EXPECT_NE(refusal({"--frobnicate"}).find("frobnicate"), std::string::npos);
  EXPECT_NE(refusal({"-d"}).find("d"), std::string::npos);
  EXPECT_NE(refusal({"-", "b.pdf", "-"}).find("only one of the documents"), std::string::npos);
  for (const auto& half : {std::vector<std::string>{"--save", "new.pdf", "a.pdf"}, {"--no-dialog"}})
    EXPECT_NE(refusal(half).find("need each other"), std::string::npos);
  EXPECT_NE(refusal({"--no-dialog", "--save", "new.pdf"}).find("needs a document"),
            std::string::npos);
  for (const char* copies : {"0", "-2", "many", "10000"})
    for (const std::string option : {"-n", "-ocopies="})
      EXPECT_NE(refusal({option + copies, "a.pdf"}).find(copies), std::string::npos);
  EXPECT_NE(refusal({"--ppd", "a.ppd", "--sample"}).find("Only one of"), std::string::npos);
  EXPECT_NE(refusal({"--output", "jobs", "a.pdf"}).find("--output needs"), std::string::npos);
}

}  // namespace
}  // namespace tavrin
