#include "host/document/DocumentFormat.h"

#include <vector>

#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(DocumentFormat, IsKnownByTheFirstBytes) {
  EXPECT_EQ(formatOf("%PDF-1.4"), "application/pdf");
  EXPECT_EQ(formatOf("%!PS-Adobe"), "application/postscript");
  EXPECT_EQ(formatOf("\xFF\xD8\xFF\xE0"), "image/jpeg");
  EXPECT_EQ(formatOf("\x89PNG\r\n\x1A\n..."), "image/png");
}

TEST(DocumentFormat, OfAPDFMayComeAfterEmptyLines) {
  EXPECT_EQ(formatOf("\r\n\n%PDF-1.4"), "application/pdf");
  EXPECT_EQ(formatOf("\n"), "text/plain");
}

TEST(DocumentFormat, OfPicturesIsNamedAsThePrintSystemNamesIt) {
  EXPECT_EQ(formatOf("GIF89a"), "image/gif");
  EXPECT_EQ(formatOf(std::string_view("MM\0*", 4)), "image/tiff");
  EXPECT_EQ(formatOf("P6 4 4 255 "), "image/x-portable-pixmap");
  EXPECT_EQ(formatOf("P1\n2 2\n1 0 0 1\n"), "image/x-portable-bitmap");
  EXPECT_EQ(formatOf("/* XPM */"), "image/x-xpixmap");
  // "image/x-bitmap" there, "image/bmp" elsewhere.
  EXPECT_EQ(formatOf(std::string_view("BM\x46\0\0\0\0\0\0\0", 10)), kUnknownFormat);
}

TEST(DocumentFormat, OfCamerasAndTheWebIsKnownToo) {
  EXPECT_EQ(formatOf(std::string_view("RIFF\x24\0\0\0WEBPVP8 ", 16)), "image/webp");
  EXPECT_EQ(formatOf(std::string_view("\0\0\0\x18"
                                      "ftypheic\0\0\0\0",
                                      16)),
            "image/heif");
  EXPECT_EQ(formatOf(std::string_view("\0\0\0\x20"
                                      "ftypavif\0\0\0\0",
                                      16)),
            "image/avif");
}

TEST(DocumentFormat, OfTextIsPlainHoweverItBegins) {
  EXPECT_EQ(formatOf("Dear Ada,\r\n\tgr\xC3\xBC\xC3\x9F dich\n"), "text/plain");
  for (const char* text : {"BMW and others", "ID3 tags", "#!/bin/sh", "From: Ada", "FWS"})
    EXPECT_EQ(formatOf(text), "text/plain") << text;
}

TEST(DocumentFormat, OfTextThatThePrintSystemReadsIsLeftToIt) {
  for (const char* text : {"#CUPS-COMMAND", "#PDF-BANNER", "<svg>", "<html>", "#define a_width 8"})
    EXPECT_EQ(formatOf(text), kUnknownFormat) << text;
}

TEST(DocumentFormat, OfOtherFilesIsForThePrintSystemToFindOut) {
  const std::vector<std::string_view> others{
      {"PK\3\4\0\0", 6}, {"\x1F\x8B\x08\0\0\0", 6}, {"\0\1\2\3", 4}, {"Dear Ada\x1B"}};
  for (const std::string_view start : others) EXPECT_EQ(formatOf(start), kUnknownFormat) << start;
}

}  // namespace
}  // namespace tavrin
