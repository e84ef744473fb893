#include "host/impose/pictures/PictureTags.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/fixtures/FourCorners.h"

namespace tavrin {
namespace {

using namespace std::string_literals;

constexpr int kOrientation = 0x112;
constexpr int kUnit = 0x128;

TiffTags tagsOf(const std::string& file, int picture = 0) {
  return pictureTags({reinterpret_cast<const unsigned char*>(file.data()), file.size()}, picture);
}

// A directory with one ratio, for pixels per unit across, and where the next one is.
std::string tiff(const std::string& unit, const std::string& next) {
  return "II*\0\x08\0\0\0"s + "\2\0"s + "\x1a\1\5\0\1\0\0\0\x26\0\0\0"s + "\x28\1\3\0\1\0\0\0"s +
         unit + next + "\x2c\1\0\0\1\0\0\0"s;
}

std::string png(const std::string& chunks) { return "\x89PNG\r\n\x1a\n" + chunks; }
std::string chunk(const std::string& name, const std::string& contents) {
  return std::string(3, '\0') + static_cast<char>(contents.size()) + name + contents + "crc!";
}

TEST(PictureTagsTest, AreThereInBothOrdersOfBytes) {
  EXPECT_EQ(tagsOf(test::exifTags({{kOrientation, 6}})).orientation, 6);
  EXPECT_EQ(tagsOf(tiff("\2\0\0\0"s, "\0\0\0\0"s)).density.x, 300);
  EXPECT_NEAR(tagsOf(tiff("\3\0\0\0"s, "\0\0\0\0"s)).density.x, 762, 1e-9) << "to the centimetre";
  EXPECT_EQ(tagsOf(tiff("\1\0\0\0"s, "\0\0\0\0"s)).density.x, 0) << "without a unit";
}

TEST(PictureTagsTest, AreThoseOfTheDirectoryThatIsAskedFor) {
  const std::string file =
      tiff("\2\0\0\0"s, "\x2e\0\0\0"s) + "\1\0"s + "\x12\1\3\0\1\0\0\0\x08\0\0\0"s + "\0\0\0\0"s;
  EXPECT_EQ(tagsOf(file, 0).orientation, 1);
  EXPECT_EQ(tagsOf(file, 1).orientation, 8);
  EXPECT_EQ(tagsOf(file, 2).orientation, 1) << "there is none";
}

TEST(PictureTagsTest, WhatMakesNoSenseIsNotThere) {
  EXPECT_EQ(tagsOf(test::exifTags({{kOrientation, 9}})).orientation, 1);
  EXPECT_EQ(tagsOf(test::exifTags({{kOrientation, 0}, {kUnit, 7}})).orientation, 1);
  EXPECT_EQ(tagsOf("MM").orientation, 1);
  const std::string file = test::exifTags({{kOrientation, 6}});
  for (std::size_t size = 0; size < file.size(); ++size)
    EXPECT_LE(tagsOf(file.substr(0, size)).orientation, 6) << "reads nothing beyond the end";
}

TEST(PictureTagsTest, OfAPngAreInItsChunks) {
  const std::string perMetre = "\0\0\x2e\x23\0\0\x17\x12\1"s;  // 11811 and 5906
  const TiffTags tags = tagsOf(png(chunk("IHDR", "head") + chunk("pHYs", perMetre) +
                                   chunk("eXIf", test::exifTags({{kOrientation, 3}}))));
  EXPECT_EQ(tags.density.x, 300);
  EXPECT_NEAR(tags.density.y, 150.01, 1e-9);
  EXPECT_EQ(tags.orientation, 3);
}

TEST(PictureTagsTest, OfAPngAreInFrontOfThePicture) {
  EXPECT_EQ(tagsOf(png(chunk("IDAT", "") + chunk("eXIf", test::exifTags({{kOrientation, 3}}))))
                .orientation,
            1);
  EXPECT_EQ(tagsOf(png("\xff\xff\xff\xffpHYs")).orientation, 1) << "longer than the file";
}

TEST(PictureTagsTest, OfAWebpAreInAChunkToo) {
  const std::string exif = test::exifTags({{kOrientation, 5}});
  const std::string file = "RIFF\0\0\0\0WEBP"s + "VP8 \3\0\0\0abc\0"s + "EXIF" +
                           static_cast<char>(exif.size()) + "\0\0\0"s + exif;
  EXPECT_EQ(tagsOf(file).orientation, 5);
}

}  // namespace
}  // namespace tavrin
