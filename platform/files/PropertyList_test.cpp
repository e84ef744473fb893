#include "platform/files/PropertyList.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "tests/fixtures/BinaryList.h"
#include "tests/fixtures/HostileLists.h"
#include "tests/fixtures/TemporaryFolder.h"
#include "tests/fixtures/XmlList.h"

namespace tavrin {
namespace {

using test::binaryArray;
using test::binaryDictionary;
using test::binaryList;
using test::binaryText;
using test::repeated;
using test::xmlEntry;
using test::xmlList;

// The text of a list whose top is one.
OptString textOf(const std::string& bytes) {
  const auto list = parsePropertyList(bytes);
  return list ? list->string() : std::nullopt;
}

// Whether there is a list and its top is neither text nor dictionary.
bool isSomethingElse(const std::string& bytes) {
  const auto list = parsePropertyList(bytes);
  return list && !list->string() && list->dictionary() == nullptr;
}

TEST(XmlList, AnswersAlongAPathOfKeys) {
  const auto list = parsePropertyList(xmlList(
      "<dict><key>Model</key><dict><key>Current</key><dict>" + xmlEntry("CartName", "Photo") +
      "</dict></dict><key>Count</key><integer>2</integer></dict>"));
  ASSERT_TRUE(list);
  EXPECT_EQ(list->stringAt({"Model", "Current", "CartName"}), "Photo");
  EXPECT_FALSE(list->stringAt({"Model", "Current"}));
  EXPECT_FALSE(list->stringAt({"Model", "Current", "CartName", "deeper"}));
  EXPECT_FALSE(list->stringAt({"Other", "Current", "CartName"}));
  EXPECT_FALSE(list->stringAt({"Count"}));
  EXPECT_FALSE(list->stringAt({}));
  EXPECT_FALSE(list->stringAt({"model", "Current", "CartName"}));
  ASSERT_NE(list->dictionary(), nullptr);
  EXPECT_EQ(list->dictionary()->size(), 2U);
}

TEST(XmlList, MayHaveAnyValueAtItsTop) {
  EXPECT_EQ(textOf(xmlList("<string>text</string>")), "text");
  EXPECT_EQ(textOf(xmlList("<string/>")), "");
  for (const char* value :
       {"<true/>", "<integer>1</integer>", "<real>1.5</real>", "<data>AAAA</data>",
        "<date>2007-01-01T00:00:00Z</date>", "<array><string>a</string></array>"}) {
    EXPECT_TRUE(isSomethingElse(xmlList(value))) << value;
  }
}

TEST(XmlList, TakesWhatOrdinaryFilesHave) {
  EXPECT_EQ(textOf("\xEF\xBB\xBF" + xmlList("<string>a</string>")), "a") << "byte order mark";
  EXPECT_EQ(textOf("<plist version=\"1.0\"><string>a</string></plist>"), "a") << "no head";
  EXPECT_EQ(textOf(xmlList("<!-- <dict> --><string>a</string>")), "a");
  EXPECT_EQ(textOf(xmlList("<string><![CDATA[<a> & b]]></string>")), "<a> & b");
  EXPECT_EQ(textOf(xmlList("<string>&lt;a&gt; &amp; &quot;b&#xFC;&#252;</string>")),
            "<a> & \"b\u00FC\u00FC");
}

TEST(XmlList, TheLastOfTwoEqualKeysWins) {
  const auto list =
      parsePropertyList(xmlList("<dict>" + xmlEntry("a", "1") + xmlEntry("a", "2") + "</dict>"));
  ASSERT_TRUE(list);
  EXPECT_EQ(list->stringAt({"a"}), "2");
}

TEST(XmlList, TextThatIsNotUtf8IsNotAText) {
  EXPECT_TRUE(isSomethingElse(xmlList("<string>caf\xE9</string>")));
  const auto list = parsePropertyList(
      xmlList("<dict>" + xmlEntry("k\xFF", "v") + xmlEntry("good", "v") + "</dict>"));
  ASSERT_TRUE(list);
  EXPECT_EQ(list->dictionary()->size(), 1U);
}

TEST(XmlList, HasNoDeclarationsOfItsOwn) {
  const std::string value = "<plist><string>a</string></plist>";
  EXPECT_EQ(textOf("<!DOCTYPE plist SYSTEM \"x.dtd\">" + value), "a");
  EXPECT_FALSE(parsePropertyList("<!DOCTYPE plist []>" + value));
  EXPECT_FALSE(parsePropertyList("<!DOCTYPE plist [<!ENTITY a \"b\">]>" + value));
  EXPECT_FALSE(textOf(xmlList("<string>&unknown;</string>")));
}

TEST(XmlList, RefersToCharactersOnly) {
  EXPECT_EQ(textOf(xmlList("<string>&#x10FFFF;&#1;</string>")), "\U0010FFFF\u0001");
  for (const char* reference :
       {"&#0;", "&#x0;", "&#x000;", "&#x110000;", "&#4294967296;", "&#;", "&#x;", "&#-1;", "&#65",
        "&#6 5;", "&#X41;", "&#18446744073709551616;"}) {
    EXPECT_FALSE(parsePropertyList(
        xmlList("<dict><key>a" + std::string(reference) + "b</key><true/></dict>")))
        << reference;
  }
}

TEST(XmlList, IsClosedAndWellNested) {
  for (const char* text : {"<dict>", "</dict>", "<dict></array>", "<array></array></array>",
                           "<string>a</dict>", "<dict><key>a</key></dict", "<array><!-- </array>",
                           "<string><![CDATA[</string>", "<", "<array>\"></array><a x=\">\"/>"}) {
    EXPECT_FALSE(parsePropertyList(text)) << text;
  }
}

TEST(XmlList, NestsDeepEnough) {
  const auto nested = [](std::size_t levels) {
    return xmlList(repeated("<array>", levels) + repeated("</array>", levels));
  };
  EXPECT_TRUE(parsePropertyList(nested(30)));
  EXPECT_FALSE(parsePropertyList(nested(32)));
}

TEST(XmlList, IsUnsoundWhenCutAnywhere) {
  const std::string whole = xmlList("<dict>" + xmlEntry("a", "b&amp;c") +
                                    "<key>d</key><array><true/><data>AAAA</data></array></dict>");
  ASSERT_TRUE(parsePropertyList(whole));
  for (std::size_t length = 0; length < whole.size() - 1; ++length) {
    EXPECT_FALSE(parsePropertyList(whole.substr(0, length))) << length;
  }
}

TEST(BinaryList, AnswersAlongAPathOfKeys) {
  const auto list = parsePropertyList(
      binaryList({binaryDictionary({1, 2}), binaryText("Current"), binaryDictionary({3, 4}),
                  binaryText("CartName"), binaryText("Photo")}));
  ASSERT_TRUE(list);
  EXPECT_EQ(list->stringAt({"Current", "CartName"}), "Photo");
}

TEST(BinaryList, MayHaveAnyValueAtItsTop) {
  EXPECT_EQ(textOf(binaryList({binaryText("text")})), "text");
  EXPECT_EQ(textOf(binaryList({std::string("\x62\0\xFC\x65\xE5", 5)})), "\u00FC\u65E5");
  const std::string date = "\x33" + std::string(8, '\0');
  for (const std::string& value :
       {std::string("\x09"), std::string("\x10\x05"), date, std::string("\x42xx"),
        std::string("\x80\x01"), binaryArray({})}) {
    EXPECT_TRUE(isSomethingElse(binaryList({value}))) << static_cast<int>(value[0]);
  }
}

TEST(BinaryList, TheLastOfTwoEqualKeysWins) {
  const auto list = parsePropertyList(binaryList(
      {binaryDictionary({1, 1, 2, 3}), binaryText("a"), binaryText("1"), binaryText("2")}));
  ASSERT_TRUE(list);
  EXPECT_EQ(list->stringAt({"a"}), "2");
}

TEST(BinaryList, TextThatIsNotUtf8IsNotAText) {
  EXPECT_TRUE(isSomethingElse(binaryList({binaryText("caf\xE9")})));
}

TEST(BinaryList, MayShareWhatIsSmall) {
  EXPECT_TRUE(parsePropertyList(binaryList({binaryArray({1, 1, 1}), binaryText("shared")})));
}

TEST(BinaryList, IsUnsoundWhenCutAnywhereAndHarmlessWhenChangedAnywhere) {
  const std::string whole =
      binaryList({binaryDictionary({1, 2, 3, 4}), binaryText("a"), binaryText("b"),
                  binaryArray({1, 1}), std::string("\x61\0\xFC", 3)});
  ASSERT_TRUE(parsePropertyList(whole));
  for (std::size_t i = 0; i < whole.size(); ++i) {
    EXPECT_FALSE(parsePropertyList(whole.substr(0, i))) << i;
    for (int value = 0; value < 256; ++value) {
      std::string changed = whole;
      changed[i] = static_cast<char>(value);
      const auto list = parsePropertyList(changed);
      const auto* entries = list ? list->dictionary() : nullptr;
      EXPECT_LE(entries != nullptr ? entries->size() : 0, 2U);
    }
  }
}

TEST(PropertyList, HostileListsAreRefused) {
  for (const auto& [name, bytes] : test::hostileLists()) {
    EXPECT_FALSE(parsePropertyList(bytes)) << name;
  }
}

TEST(PropertyList, LargeListsAreRead) {
  for (const auto& [name, bytes] : test::largeLists()) {
    EXPECT_LE(bytes.size(), kPropertyListSizeLimit) << name;
    EXPECT_TRUE(parsePropertyList(bytes)) << name;
  }
}

TEST(PropertyList, FileIsReadInBothForms) {
  const test::TemporaryFolder folder;
  for (const std::string& bytes : {xmlList("<string>a</string>"), binaryList({binaryText("a")})}) {
    const auto list = readPropertyList(folder.write("list.plist", bytes));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->string(), "a");
  }
}

TEST(PropertyList, FileMayBeAsLargeAsTheLimit) {
  const test::TemporaryFolder folder;
  std::string bytes = xmlList("<string>a</string>");
  bytes.resize(kPropertyListSizeLimit, ' ');
  EXPECT_TRUE(readPropertyList(folder.write("list.plist", bytes)));
  EXPECT_FALSE(readPropertyList(folder.write("list.plist", bytes + ' ')));
}

TEST(PropertyList, WhatIsNotAFileIsNotAList) {
  const test::TemporaryFolder folder;
  ASSERT_EQ(mkfifo((folder.path() / "fifo").c_str(), 0600), 0);
  std::filesystem::create_symlink("/dev/zero", folder.path() / "device");
  for (const char* name : {"fifo", "device", ".", "missing"}) {
    EXPECT_FALSE(readPropertyList(folder.path() / name)) << name;
  }
}

}  // namespace
}  // namespace tavrin
