#include "platform/text/Quoted.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(Quoted, StandsInQuotationMarks) {
  EXPECT_EQ(quotedInShort("Mirror"), "\"Mirror\"");
  EXPECT_EQ(quotedInShort(""), "\"\"");
  EXPECT_EQ(quotedInShort(std::string(200, 'x')).size(), 202u);
}

TEST(Quoted, IsCutBetweenCharacters) {
  EXPECT_EQ(quotedInShort(std::string(201, 'x')), '"' + std::string(200, 'x') + "...\"");
  EXPECT_EQ(quotedInShort(std::string(199, 'x') + "\u00FC"), '"' + std::string(199, 'x') + "...\"");
}

TEST(Quoted, OnATerminalThereIsOneKindOfMarks) {
  EXPECT_EQ(plainlyQuoted("“a” is not “b”, nor \"c\"."), "\"a\" is not \"b\", nor \"c\".");
  EXPECT_EQ(plainlyQuoted("The printer’s “"), "The printer’s \"");
}

TEST(Quoted, AWordForAShellIsOneWord) {
  EXPECT_EQ(shellQuoted("photo-7"), "'photo-7'");
  EXPECT_EQ(shellQuoted("a b; rm c"), "'a b; rm c'");
  EXPECT_EQ(shellQuoted("Ada's"), "'Ada'\\''s'");
}

TEST(Quoted, ANameIsNeverCut) {
  const std::string name(1000, 'x');
  EXPECT_EQ(quoted(name), '"' + name + '"');
}

}  // namespace
}  // namespace tavrin
