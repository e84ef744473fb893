#include "host/impose/pictures/HeifFrames.h"

#include <gtest/gtest.h>

#include "host/impose/pictures/Trouble.h"
#include "tests/fixtures/FourCorners.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

// Writes a picture of four colours with the library's own encoder.
std::filesystem::path written(const test::TemporaryFolder& place, heif_compression_format kind) {
  const QImage image = test::fourCorners(128, 64).convertToFormat(QImage::Format_RGB888);
  heif_image* picture = nullptr;
  heif_image_create(128, 64, heif_colorspace_RGB, heif_chroma_interleaved_RGB, &picture);
  heif_image_add_plane(picture, heif_channel_interleaved, 128, 64, 8);
  int length = 0;
  uint8_t* rows = heif_image_get_plane(picture, heif_channel_interleaved, &length);
  for (int y = 0; y < 64; ++y)
    std::copy_n(image.constScanLine(y), 128 * 3, rows + static_cast<std::ptrdiff_t>(y) * length);
  heif_context* context = heif_context_alloc();
  heif_encoder* encoder = nullptr;
  EXPECT_EQ(heif_context_get_encoder_for_format(context, kind, &encoder).code, heif_error_Ok);
  EXPECT_EQ(heif_context_encode_image(context, picture, encoder, nullptr, nullptr).code,
            heif_error_Ok);
  const auto file = place.path() / "picture";
  EXPECT_EQ(heif_context_write_to_file(context, file.c_str()).code, heif_error_Ok);
  heif_encoder_release(encoder);
  heif_image_release(picture);
  heif_context_free(context);
  return file;
}

class HeifFramesTest : public testing::TestWithParam<heif_compression_format> {};

TEST_P(HeifFramesTest, AreDecoded) {
  const test::TemporaryFolder place;
  const auto path = written(place, GetParam());
  const auto file = std::make_shared<MappedFile>(path);
  ASSERT_TRUE(HeifFrames::knows(file->bytes()));
  HeifFrames frames(path, file);
  EXPECT_EQ(frames.shape(0).width, 128);
  EXPECT_EQ(frames.shape(0).height, 64);
  const QImage image = frames.decoded(0);
  EXPECT_GT(qRed(image.pixel(10, 10)), 200);
  EXPECT_GT(qGreen(image.pixel(110, 10)), 200);
  EXPECT_GT(qBlue(image.pixel(10, 50)), 200);
}

TEST_P(HeifFramesTest, OfADamagedFileAreNotThere) {
  const test::TemporaryFolder place;
  const auto path = written(place, GetParam());
  std::filesystem::resize_file(path, 100);
  const auto file = std::make_shared<MappedFile>(path);
  try {
    HeifFrames(path, file).decoded(0);
    FAIL() << "it was read";
  } catch (const Trouble& trouble) {
    EXPECT_EQ(trouble.status(), Status::damaged) << trouble.what();
  }
}

INSTANTIATE_TEST_SUITE_P(Codecs, HeifFramesTest,
                         testing::Values(heif_compression_HEVC, heif_compression_AV1));

}  // namespace
}  // namespace tavrin
