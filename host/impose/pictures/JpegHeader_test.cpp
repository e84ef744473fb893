#include "host/impose/pictures/JpegHeader.h"

#include <gtest/gtest.h>

#include "tests/fixtures/FourCorners.h"

namespace tavrin {
namespace {

using test::jpegSegment;

Bytes bytesOf(const std::string& text) {
  return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

std::optional<JpegHeader> headerOf(const std::string& file) { return jpegHeader(bytesOf(file)); }

// A file of 300 by 200 pixels with these segments, up to the picture's data.
std::string fileWith(const std::string& segments, int frame = 0xc0, int components = 3) {
  std::string head("\x08\x00\xc8\x01\x2c", 5);
  head += static_cast<char>(components);
  return "\xff\xd8" + segments + jpegSegment(frame, head) + jpegSegment(0xda, "scan") + "data";
}

std::string jfif(int unit, int x, int y) {
  return jpegSegment(0xe0, std::string("JFIF\0\1\2", 7) + static_cast<char>(unit) +
                               std::string{'\0', static_cast<char>(x), '\0', static_cast<char>(y)} +
                               std::string(2, '\0'));
}

TEST(JpegHeaderTest, SaysHowLargeThePictureIs) {
  const auto header = headerOf(test::encoded(test::fourCorners(30, 20), "jpeg"));
  ASSERT_TRUE(header);
  EXPECT_EQ(header->shape.width, 30);
  EXPECT_EQ(header->shape.height, 20);
  EXPECT_EQ(header->components, 3);
  EXPECT_TRUE(header->isForPDF);
  EXPECT_TRUE(header->isWhole);
  EXPECT_FALSE(header->isByAdobe);
}

TEST(JpegHeaderTest, MissesTheEndOfAFileThatIsCutOff) {
  std::string file = test::encoded(test::fourCorners(30, 20), "jpeg");
  file.resize(file.size() - 20);
  const auto header = headerOf(file);
  ASSERT_TRUE(header);
  EXPECT_FALSE(header->isWhole);
}

TEST(JpegHeaderTest, IsAbsentWhereItIsCutOffItself) {
  const std::string file = fileWith(jfif(1, 100, 100));
  const std::size_t whole = file.size() - std::string("scandata").size();
  EXPECT_TRUE(headerOf(file));
  for (std::size_t size = 2; size < whole; ++size)
    EXPECT_FALSE(headerOf(file.substr(0, size))) << size << " bytes";
}

TEST(JpegHeaderTest, IsAbsentForOtherBytes) {
  EXPECT_FALSE(headerOf(std::string("\xff\xd8\xff\xe0\x00\x00", 6)));
  EXPECT_FALSE(headerOf("\xff\xd8 and then text"));
  EXPECT_FALSE(headerOf(std::string("\xff\xd8\xff\xd9")));
  EXPECT_FALSE(isJpeg(bytesOf("%PDF-1.4")));
}

TEST(JpegHeaderTest, KnowsWhatPDFHasNoFilterFor) {
  EXPECT_TRUE(headerOf(fileWith("", 0xc2))->isForPDF) << "progressive";
  EXPECT_FALSE(headerOf(fileWith("", 0xc3))->isForPDF) << "lossless";
  EXPECT_FALSE(headerOf(fileWith("", 0xc9))->isForPDF) << "arithmetic";
  EXPECT_FALSE(headerOf(fileWith("", 0xc0, 2))->isForPDF);
}

TEST(JpegHeaderTest, TakesTheDensityOfTheFile) {
  EXPECT_EQ(headerOf(fileWith(jfif(1, 100, 50)))->shape.density.x, 100);
  EXPECT_EQ(headerOf(fileWith(jfif(1, 100, 50)))->shape.density.y, 50);
  EXPECT_NEAR(headerOf(fileWith(jfif(2, 100, 100)))->shape.density.x, 254, 1e-9);
}

TEST(JpegHeaderTest, MakesUpADensityWhereThereIsNone) {
  for (const std::string& segment : {std::string(), jfif(0, 100, 100), jfif(1, 0, 100)})
    EXPECT_EQ(headerOf(fileWith(segment))->shape.density.x, 200);
}

TEST(JpegHeaderTest, ReadsTheOrientation) {
  for (int orientation = 1; orientation <= 8; ++orientation) {
    const auto header = headerOf(test::jpegStoredAs(orientation, test::fourCorners(30, 20)));
    ASSERT_TRUE(header);
    EXPECT_EQ(header->shape.orientation, orientation);
    EXPECT_EQ(header->shape.look().pixels.width, orientation > 4 ? 20 : 30);
  }
  EXPECT_EQ(headerOf(test::jpegStoredAs(9, test::fourCorners(9, 9)))->shape.orientation, 1);
}

TEST(JpegHeaderTest, PutsTheProfileTogether) {
  const auto piece = [](char number, const char* text) {
    return jpegSegment(0xe2, std::string("ICC_PROFILE\0", 12) + number + '\2' + text);
  };
  EXPECT_EQ(headerOf(fileWith(piece(1, "one ") + piece(2, "two")))->profile, "one two");
}

TEST(JpegHeaderTest, KnowsAdobesMark) {
  EXPECT_TRUE(headerOf(fileWith(jpegSegment(0xee, "Adobe and so on"), 0xc0, 4))->isByAdobe);
}

}  // namespace
}  // namespace tavrin
