#include "ppd/TextEncoding.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(TextEncoding, TurnsEveryCharacterSetIntoUTF8) {
  EXPECT_EQ(decode("Plain", kASCIIEncoding), "Plain");
  EXPECT_EQ(decode("Qualit\xc3\xa9", kUTF8Encoding), "Qualité");
  EXPECT_EQ(decode("Qualit\xe9", kISOLatin1Encoding), "Qualité");
  EXPECT_EQ(decode("10 \x80", kWindowsLatin1Encoding), "10 €");
  EXPECT_EQ(decode("Qualit\x8e", kMacOSRomanEncoding), "Qualité");
  EXPECT_EQ(decode("\x8e\x86", kShiftJISEncoding), "紙");
}

TEST(TextEncoding, KeepsTheBackslashOfAShiftJISText) {
  EXPECT_EQ(decode("A\\B", kShiftJISEncoding), "A\\B");
}

TEST(TextEncoding, AnswersAbsentForBytesThatAreNoText) {
  EXPECT_EQ(decode("\xe9", kASCIIEncoding), std::nullopt);
  EXPECT_EQ(decode("\xe9", kUTF8Encoding), std::nullopt);
  EXPECT_EQ(decode("cut \xe7\xb4", kUTF8Encoding), std::nullopt);
  EXPECT_EQ(decode("\x8e", kShiftJISEncoding), std::nullopt);
  EXPECT_EQ(decode("\x81", kWindowsLatin1Encoding), std::nullopt);
}

TEST(TextEncoding, AnswersAbsentForAnUnknownNumber) {
  EXPECT_EQ(decode("text", 0), std::nullopt);
  EXPECT_EQ(decode("text", 31), std::nullopt);
}

TEST(TextEncoding, KnowsTheEmptyTextFromAnAbsentOne) {
  EXPECT_EQ(decode("", kUTF8Encoding), "");
  EXPECT_EQ(decodeUTF8(""), "");
  EXPECT_EQ(decodeUTF8(nullptr), std::nullopt);
}

}  // namespace
}  // namespace tavrin
