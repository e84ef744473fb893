#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "platform/files/PropertyList.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

using Table = PropertyList::Dictionary;

constexpr char kUtilityStep[] = "2) Launch the Tavrin Utility";

Table tableOf(const std::string& language) {
  const fs::path file = fs::path(TAVRIN_RESOURCES) / (language + ".lproj") / "Localizable.strings";
  const auto list = readPropertyList(file);
  EXPECT_TRUE(list && list->dictionary()) << file;
  return list && list->dictionary() ? *list->dictionary() : Table();
}

std::set<std::string> keysOf(const Table& table) {
  std::set<std::string> keys;
  for (const auto& [key, text] : table) keys.insert(key);
  return keys;
}

// Every language that has a folder.
std::set<std::string> languages() {
  std::set<std::string> found;
  for (const auto& entry : fs::directory_iterator(TAVRIN_RESOURCES)) {
    if (entry.path().extension() == ".lproj") found.insert(entry.path().stem());
  }
  return found;
}

std::string sourcesOf(const std::string& folder) {
  std::ostringstream text;
  for (const auto& entry : fs::directory_iterator(fs::path(TAVRIN_SOURCES) / folder)) {
    const std::string name = entry.path().filename();
    if (name.find("_test.") == std::string::npos && entry.is_regular_file()) {
      text << std::ifstream(entry.path()).rdbuf();
    }
  }
  return text.str();
}

TEST(StringsTables, SevenLanguages) {
  EXPECT_EQ(languages(), (std::set<std::string>{"de", "en", "es", "fi", "fr", "ja", "pt"}));
}

TEST(StringsTables, EnglishShowsTheKeys) {
  for (const auto& [key, text] : tableOf("en")) EXPECT_EQ(text.string(), key);
}

TEST(StringsTables, EveryLanguageHasTheSameKeysAndNoEmptyText) {
  const auto expected = keysOf(tableOf("en"));
  EXPECT_EQ(expected.size(), 44U);
  for (const std::string& language : languages()) {
    const Table table = tableOf(language);
    EXPECT_EQ(keysOf(table), expected) << language;
    for (const auto& [key, text] : table) EXPECT_NE(text.string().value_or(""), "") << key;
  }
}

TEST(StringsTables, NoKeyIsLeftOver) {
  const std::string sources =
      sourcesOf("conflict") + sourcesOf("controller") + sourcesOf("plugin") + sourcesOf("ppd");
  for (const std::string& key : keysOf(tableOf("en"))) {
    EXPECT_NE(sources.find('"' + key + '"'), std::string::npos) << key;
  }
}

// Labels to which a value is appended keep their blank.
TEST(StringsTables, PrefixesEndInABlank) {
  for (const std::string& language : languages()) {
    const Table table = tableOf(language);
    for (const char* prefix : {"Paper Type: ", "Paper Size: "}) {
      EXPECT_EQ(table.at(prefix).string().value_or("-").back(), ' ') << language;
    }
  }
}

// The one text that may name the printer; a "%" anywhere else would be a mistake.
TEST(StringsTables, OnlyTheUtilityStepHasAPlaceholder) {
  for (const std::string& language : languages()) {
    for (const auto& [key, text] : tableOf(language)) {
      const std::string shown = text.string().value_or("");
      const auto percent = shown.find('%');
      if (percent == std::string::npos) continue;
      EXPECT_EQ(key, kUtilityStep) << language;
      EXPECT_EQ(shown.substr(percent, 2), "%@") << language;
      EXPECT_EQ(shown.find('%', percent + 1), std::string::npos) << language;
    }
  }
}

}  // namespace
}  // namespace tavrin
