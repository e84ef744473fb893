#include "platform/text/Quoted.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(Quoted, StandsInQuotationMarks) {
  EXPECT_EQ(quoted("Mirror"), "\"Mirror\"");
  EXPECT_EQ(quoted(""), "\"\"");
  EXPECT_EQ(quoted(std::string(200, 'x')).size(), 202u);
}

TEST(Quoted, IsCutBetweenCharacters) {
  EXPECT_EQ(quoted(std::string(201, 'x')), '"' + std::string(200, 'x') + "...\"");
  EXPECT_EQ(quoted(std::string(199, 'x') + "\u00FC"), '"' + std::string(199, 'x') + "...\"");
}

}  // namespace
}  // namespace tavrin
