#include "host/impose/pictures/QtFrames.h"

#include <gtest/gtest.h>

#include "host/impose/pictures/Trouble.h"
#include "tests/fixtures/FourCorners.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

std::string two(std::size_t number) {
  return {static_cast<char>(number & 0xff), static_cast<char>(number >> 8 & 0xff)};
}
std::string four(std::size_t number) { return two(number & 0xffff) + two(number >> 16); }
std::string entry(int tag, std::size_t number) {
  return two(tag) + two(4) + four(1) + four(number);
}

// A picture in one grey that begins at that place in a TIFF file: its pixels and its directory.
// Where the next directory begins is left out.
std::string greyPicture(std::size_t place, int width, int height, char grey) {
  const std::string pixels(static_cast<std::size_t>(width) * height, grey);
  return pixels + two(9) + entry(256, width) + entry(257, height) + entry(258, 8) + entry(259, 1) +
         entry(262, 1) + entry(273, place) + entry(277, 1) + entry(278, height) +
         entry(279, pixels.size());
}

std::string tiffOfTwo() {
  const std::string first = greyPicture(8, 6, 4, '\x40');
  const std::size_t second = 8 + first.size() + 4;
  return "II*" + std::string(1, '\0') + four(8 + 24) + first + four(second + 30) +
         greyPicture(second, 5, 6, '\xc0') + four(0);
}

class QtFramesTest : public testing::Test {
 protected:
  std::unique_ptr<QtFrames> framesOf(const std::string& bytes) {
    const auto path = place.write("picture", bytes);
    return std::make_unique<QtFrames>(path, MappedFile(path));
  }
  bool knows(const std::string& bytes) { return QtFrames::knows(place.write("picture", bytes)); }

  test::TemporaryFolder place;
};

TEST_F(QtFramesTest, AreAllPagesOfATiffFile) {
  const auto frames = framesOf(tiffOfTwo());
  ASSERT_EQ(frames->count(), 2);
  EXPECT_EQ(frames->shape(0).width, 6);
  EXPECT_EQ(frames->shape(1).width, 5);
  EXPECT_EQ(frames->shape(1).height, 6);
  EXPECT_TRUE(frames->isGrey(1));
  EXPECT_EQ(qRed(frames->decoded(1).pixel(2, 2)), 0xc0);
  EXPECT_EQ(qRed(frames->decoded(0).pixel(2, 2)), 0x40);
}

TEST_F(QtFramesTest, AreKnownByWhatTheFileIs) {
  EXPECT_TRUE(knows(test::encoded(test::fourCorners(9, 9), "png")));
  EXPECT_TRUE(knows(test::encoded(test::fourCorners(9, 9), "webp")));
  EXPECT_TRUE(knows(test::encoded(test::fourCorners(9, 9), "ppm")));
  EXPECT_TRUE(knows(tiffOfTwo()));
  EXPECT_FALSE(knows("Dear all,\n"));
  EXPECT_FALSE(knows("<svg xmlns='http://www.w3.org/2000/svg'><text>a</text></svg>"));
  EXPECT_FALSE(knows("%PDF-1.4"));
}

TEST_F(QtFramesTest, KnowWhatIsGreyInAPalette) {
  const QImage colours = test::fourCorners(9, 9).convertToFormat(QImage::Format_Indexed8);
  EXPECT_FALSE(framesOf(test::encoded(colours, "png"))->isGrey(0));
  QImage greys(9, 9, QImage::Format_Indexed8);
  greys.setColorTable({qRgb(0, 0, 0), qRgb(128, 128, 128), qRgb(255, 255, 255)});
  greys.fill(1);
  EXPECT_TRUE(framesOf(test::encoded(greys, "png"))->isGrey(0));
}

TEST_F(QtFramesTest, OfADamagedFileAreNotThere) {
  const std::string bytes = test::encoded(test::fourCorners(90, 90), "png");
  EXPECT_THROW(framesOf(bytes.substr(0, bytes.size() / 2))->decoded(0), Trouble);
  EXPECT_THROW(framesOf(bytes.substr(0, 12)), Trouble);
}

TEST_F(QtFramesTest, OfATiffFileThatIsCutOffAreNotThere) {
  const std::string bytes = tiffOfTwo();
  for (const std::size_t missing : {60U, 140U})
    EXPECT_THROW(framesOf(bytes.substr(0, bytes.size() - missing)), Trouble) << missing;
}

// A file of a few bytes may say that it holds more pixels than there is memory for.
TEST_F(QtFramesTest, OfAFileThatIsTooLargeAreNotRead) {
  EXPECT_THROW(framesOf("P6\n50000 50000\n255\nabc")->decoded(0), Trouble);
}

}  // namespace
}  // namespace tavrin
