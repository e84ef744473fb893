#include "platform/text/Utf8.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(Utf8, TakesTextsOfEverySequenceLength) {
  EXPECT_TRUE(isUtf8(""));
  EXPECT_TRUE(isUtf8("plain"));
  EXPECT_TRUE(isUtf8("d\u00FCnn \u65E5\u672C \U0001F5A8"));
  EXPECT_TRUE(isUtf8("\xC2\x80 \xE0\xA0\x80 \xF0\x90\x80\x80 \xF4\x8F\xBF\xBF"));
}

TEST(Utf8, RefusesStrayAndMissingContinuations) {
  for (const char* bytes : {"\x80", "a\xBF", "\xC3", "\xE6\x97", "\xE6\x97z", "\xF0\x9F\x96",
                            "\xFF", "\xFE", "\xC3(", "\xE9t\xE9"}) {
    EXPECT_FALSE(isUtf8(bytes)) << bytes;
  }
}

TEST(Utf8, RefusesOverlongFormsSurrogatesAndWhatIsBeyondUnicode) {
  for (const char* bytes :
       {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80"}) {
    EXPECT_FALSE(isUtf8(bytes)) << bytes;
  }
}

TEST(Utf8, IsMadeValidByteByByte) {
  EXPECT_EQ(validUtf8("d\u00FCnn \u65E5 \U0001F5A8"), "d\u00FCnn \u65E5 \U0001F5A8");
  EXPECT_EQ(validUtf8("caf\xE9.pdf"), "caf\uFFFD.pdf");
  EXPECT_EQ(validUtf8("\xE6\x97z\xC3"), "\uFFFD\uFFFDz\uFFFD");
  EXPECT_EQ(validUtf8("\xFF\u00FC"), "\uFFFD\u00FC");
}

TEST(Utf8, DropsACharacterThatWasCut) {
  for (const std::string_view character : {"\u00FC", "\u65E5", "\U0001F5A8"}) {
    const std::string text = "a" + std::string(character);
    EXPECT_EQ(wholeCharacters(text), text);
    for (std::size_t most = 1; most < text.size(); ++most)
      EXPECT_EQ(wholeCharacters(std::string_view(text).substr(0, most)), "a") << text << most;
    EXPECT_EQ(wholeCharacters(character.substr(0, 1)), "");
  }
}

TEST(Utf8, LeavesWhatIsNoCutCharacterAlone) {
  for (const std::string_view bytes : {"", "abc", "\x80", "\x80\x80\x80\x80\x80", "a\xFF", "a\xC0"})
    EXPECT_EQ(wholeCharacters(bytes), bytes);
}

}  // namespace
}  // namespace tavrin
