#include "platform/text/Visible.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(Visible, LeavesOrdinaryTextAlone) {
  for (const char* text :
       {"", "plain", "d\u00FCnn \u65E5\u672C \U0001F5A8 \u05E9\u05DC\u05D5\u05DD", "a\\b"})
    EXPECT_EQ(visible(text), text);
}

TEST(Visible, ShowsWhatGivesOrdersToATerminal) {
  EXPECT_EQ(visible("\x1B[2J\x1B]0;title\x07"), "\\u001b[2J\\u001b]0;title\\u0007");
  EXPECT_EQ(visible("a\rb\bc\x7F"), "a\\u000db\\u0008c\\u007f");
  EXPECT_EQ(visible("\u009B2J"), "\\u009b2J") << "in one character";
  EXPECT_EQ(visible("\x9B"
                    "2J"),
            "\\x9b2J")
      << "in one byte";
  EXPECT_EQ(visible(std::string_view("\0", 1)), "\\u0000");
}

TEST(Visible, ShowsWhatTurnsTheReadingDirectionAround) {
  EXPECT_EQ(visible("\u202Efdp.exe"), "\\u202efdp.exe");
  EXPECT_EQ(visible("\u2066a\u2069\u200F\u061C"), "\\u2066a\\u2069\\u200f\\u061c");
}

TEST(Visible, KeepsTheLineBreaksThatItIsToldToKeep) {
  EXPECT_EQ(visible("one\ntwo\u2028three"), "one\\u000atwo\\u2028three");
  EXPECT_EQ(visibleLines("one\ntwo\x1B\u2028three"), "one\ntwo\\u001b\\u2028three");
}

TEST(Visible, ShowsBytesThatAreNoCharacter) {
  EXPECT_EQ(visible("caf\xE9.pdf"), "caf\\xe9.pdf");
  EXPECT_EQ(visible("\xE2\x80"), "\\xe2\\x80");
}

}  // namespace
}  // namespace tavrin
