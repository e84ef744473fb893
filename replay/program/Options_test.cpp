#include "replay/program/Options.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

Result<Options> parsed(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "tavrin-replay");
  return parseOptions(arguments);
}

TEST(Options, NothingGivenReadsStandardInput) {
  const auto options = parsed({});
  ASSERT_TRUE(options);
  EXPECT_TRUE(options->bundle.empty());
  EXPECT_TRUE(options->root.empty());
  EXPECT_TRUE(options->screenshots.empty());
  EXPECT_TRUE(options->script.empty());
  EXPECT_FALSE(options->help);
}

TEST(Options, ReadsFoldersAndScript) {
  const auto options = parsed({"--bundle", "b", "--root=r", "--screenshots", "s", "walk.jsonl"});
  ASSERT_TRUE(options);
  EXPECT_EQ(options->bundle, "b");
  EXPECT_EQ(options->root, "r");
  EXPECT_EQ(options->screenshots, "s");
  EXPECT_EQ(options->script, "walk.jsonl");
}

TEST(Options, AreBytes) {
  for (const std::string name : {"caf\xE9", "d\u00FCnn"}) {
    const auto options = parsed({"--bundle", name, "--root=" + name, "--screenshots", name, name});
    ASSERT_TRUE(options) << options.reason();
    EXPECT_EQ(options->bundle, name);
    EXPECT_EQ(options->root, name);
    EXPECT_EQ(options->screenshots, name);
    EXPECT_EQ(options->script, name);
  }
}

TEST(Options, ADashIsStandardInput) {
  const auto options = parsed({"-"});
  ASSERT_TRUE(options);
  EXPECT_TRUE(options->script.empty());
}

TEST(Options, NamesWhatItCannotUnderstand) {
  const auto unknown = parsed({"--loud"});
  ASSERT_FALSE(unknown);
  EXPECT_NE(unknown.reason().find("loud"), std::string::npos);
  const auto second = parsed({"one.jsonl", "two.jsonl"});
  ASSERT_FALSE(second);
  EXPECT_NE(second.reason().find("two.jsonl"), std::string::npos);
  EXPECT_EQ(parsed({"--l\u00E4rm"}).reason(), "Unknown option \"l\u00E4rm\".");
  EXPECT_NE(parsed({"one.jsonl", "caf\xE9"}).reason().find("\"caf\uFFFD\""), std::string::npos);
  const auto nameless = parsed({"--root", ""});
  ASSERT_FALSE(nameless);
  EXPECT_NE(nameless.reason().find("--root"), std::string::npos);
  EXPECT_FALSE(parsed({"--bundle"}));
}

TEST(Options, HelpTellsTheCommandsAndTheExitStatus) {
  ASSERT_TRUE(parsed({"--help"}));
  EXPECT_TRUE(parsed({"--help"})->help);
  EXPECT_NE(helpText().find("PPDOptionKeyValueDidChange:ppdChoice:"), std::string::npos);
  EXPECT_NE(helpText().find("Exit status"), std::string::npos);
}

}  // namespace
}  // namespace tavrin
