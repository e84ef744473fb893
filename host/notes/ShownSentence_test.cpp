#include "host/notes/ShownSentence.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

std::string shown(const char* sentence) { return shownSentence(sentence).toStdString(); }

TEST(ShownSentence, HasOneKindOfQuotationMarks) {
  EXPECT_EQ(shown("The document \"a b.pdf\" is empty."), "The document “a b.pdf” is empty.");
  EXPECT_EQ(shown("\"card\" could not be printed on \"photo\": No."),
            "“card” could not be printed on “photo”: No.");
  EXPECT_EQ(shown("Unknown option 'frobnicate'. See help."),
            "Unknown option “frobnicate”. See help.");
  EXPECT_EQ(shown("There is no printer “cellar”."), "There is no printer “cellar”.");
}

TEST(ShownSentence, LeavesInchesAndApostrophesAlone) {
  for (const char* sentence : {"4x6\" and 5x7\" paper clash.", "The printer's and the user's.",
                               "It's 5\" wide.", "The \"rest is missing."})
    EXPECT_EQ(shown(sentence), sentence);
}

}  // namespace
}  // namespace tavrin
