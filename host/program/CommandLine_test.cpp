#include "host/program/CommandLine.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

std::string refusal(const QStringList& arguments) {
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

TEST(CommandLine, ThatCannotBeIsRefusedWithTheReason) {
  EXPECT_NE(refusal({"--frobnicate"}).find("frobnicate"), std::string::npos);
  EXPECT_NE(refusal({"-d"}).find("d"), std::string::npos);
  EXPECT_NE(refusal({"a.pdf", "b.pdf"}).find("one document"), std::string::npos);
  for (const char* copies : {"0", "-2", "many", "10000"})
    for (const char* option : {"-n%1", "-ocopies=%1"})
      EXPECT_NE(refusal({QString(option).arg(copies), "a.pdf"}).find(copies), std::string::npos);
  EXPECT_NE(refusal({"--ppd", "a.ppd", "--sample"}).find("Only one of"), std::string::npos);
  EXPECT_NE(refusal({"--output", "jobs", "a.pdf"}).find("--output needs"), std::string::npos);
}

}  // namespace
}  // namespace tavrin
