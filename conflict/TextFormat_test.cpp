#include "conflict/TextFormat.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(TextFormat, PercentSignsAreReadFromTheLeft) {
  EXPECT_EQ(formatWithObject("%%@", "M"), "%@");
  EXPECT_EQ(formatWithObject("%%%@", "M"), "%M");
  EXPECT_EQ(formatWithObject("%%%%", "M"), "%%");
  EXPECT_EQ(formatWithObject("%%1$@", "M"), "%1$@");
  EXPECT_EQ(formatWithObject("%1$@%@%", "M"), "MM%");
  EXPECT_EQ(formatWithObject("%n%@", "M"), "%nM");
  EXPECT_EQ(formatWithObject("", "M"), "");
  EXPECT_EQ(formatWithObject("%@", std::nullopt), "");
}

TEST(TextFormat, TheArgumentIsNoFormat) {
  EXPECT_EQ(formatWithObject("<%@>", "%@%n%%"), "<%@%n%%>");
}

TEST(TextFormat, AMegabyteIsFormattedLikeAnyText) {
  const std::size_t megabyte = 1024 * 1024;
  EXPECT_EQ(formatWithObject(std::string(megabyte, '%'), "M"), std::string(megabyte / 2, '%'));
  EXPECT_EQ(formatWithObject(std::string(megabyte, 'x') + "%@", "M"),
            std::string(megabyte, 'x') + "M");

  std::string directives;
  while (directives.size() < megabyte) directives += "%@";
  EXPECT_EQ(formatWithObject(directives, "MM"), std::string(megabyte, 'M'));
}

}  // namespace
}  // namespace tavrin
