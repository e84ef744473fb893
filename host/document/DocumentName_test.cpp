#include "host/document/DocumentName.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(DocumentName, IsTheFilesWithoutItsFolder) {
  EXPECT_EQ(documentName("/x/d\u00FCnn.pdf"), "d\u00FCnn.pdf");
  EXPECT_EQ(documentName("-"), "(stdin)");
}

TEST(DocumentName, IsUtf8WhateverTheFilesIs) {
  EXPECT_EQ(documentName("/x/caf\xE9.pdf"), "caf\uFFFD.pdf");
}

TEST(DocumentName, HasBlanksForControlCharacters) {
  EXPECT_EQ(documentName("/x/two\nlines.pdf"), "two lines.pdf");
  EXPECT_EQ(documentName("/x/\x1B[31mred\x7F.pdf"), " [31mred .pdf");
}

TEST(DocumentName, IsCutBetweenTwoCharacters) {
  EXPECT_EQ(nameForPrinting(std::string(300, 'x')), std::string(255, 'x'));
  const std::string before(254, 'x');
  EXPECT_EQ(nameForPrinting(before + "\u00FC"), before);
}

}  // namespace
}  // namespace tavrin
