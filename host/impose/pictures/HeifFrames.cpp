#include "host/impose/pictures/HeifFrames.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include <QColorSpace>

#include "host/impose/pictures/StoredNumbers.h"
#include "host/impose/pictures/Trouble.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

constexpr int kStartOfFile = 1024;  // bytes that say which kind it is

QColorSpace colourSpace(const heif_image_handle* picture) {
  QByteArray profile(static_cast<int>(heif_image_handle_get_raw_color_profile_size(picture)), '\0');
  if (profile.isEmpty()) return {};
  const heif_error error = heif_image_handle_get_raw_color_profile(picture, profile.data());
  return error.code == heif_error_Ok ? QColorSpace::fromIccProfile(profile) : QColorSpace();
}

}  // namespace

bool HeifFrames::knows(Bytes file) {
  if (!hasTextAt(file, 4, "ftyp")) return false;
  const int size = static_cast<int>(std::min<std::size_t>(file.size(), kStartOfFile));
  const heif_filetype_result kind = heif_check_filetype(file.data(), size);
  return kind == heif_filetype_yes_supported || kind == heif_filetype_maybe;
}

HeifFrames::HeifFrames(const std::filesystem::path& thePath, std::shared_ptr<MappedFile> theFile)
    : path(thePath),
      file(std::move(theFile)),
      context(heif_context_alloc(), heif_context_free),
      picture(nullptr, heif_image_handle_release) {
  const Bytes bytes = file->bytes();
  check(heif_context_read_from_memory_without_copy(context.get(), bytes.data(), bytes.size(),
                                                   nullptr));
  heif_image_handle* handle = nullptr;
  check(heif_context_get_primary_image_handle(context.get(), &handle));
  picture.reset(handle);
}

void HeifFrames::check(const heif_error& error) const {
  if (error.code == heif_error_Ok) return;
  const bool isUnknown =
      error.code == heif_error_Unsupported_feature || error.code == heif_error_Unsupported_filetype;
  throw Trouble(isUnknown ? Status::unknownKind : Status::damaged,
                "The picture " + quoted(path.string()) +
                    " cannot be read: " + (error.message ? error.message : "no reason") + ".");
}

// The library turns pictures itself.
PictureShape HeifFrames::shape(int) const {
  PictureShape shape;
  shape.width = heif_image_handle_get_width(picture.get());
  shape.height = heif_image_handle_get_height(picture.get());
  return shape;
}

QImage HeifFrames::decoded(int) {
  QImage image = pixels();
  image.setColorSpace(colourSpace(picture.get()));
  return image;
}

QImage HeifFrames::pixels() const {
  const bool isTransparent = heif_image_handle_has_alpha_channel(picture.get());
  const Handle<heif_decoding_options> options(heif_decoding_options_alloc(),
                                              heif_decoding_options_free);
  options->convert_hdr_to_8bit = 1;
  heif_image* decoded = nullptr;
  check(heif_decode_image(
      picture.get(), &decoded, heif_colorspace_RGB,
      isTransparent ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, options.get()));
  const Handle<const heif_image> owner(decoded, heif_image_release);
  int rowLength = 0;
  const uint8_t* rows =
      heif_image_get_plane_readonly(decoded, heif_channel_interleaved, &rowLength);
  const QImage::Format format = isTransparent ? QImage::Format_RGBA8888 : QImage::Format_RGB888;
  const int width = heif_image_get_primary_width(decoded);
  const int height = heif_image_get_primary_height(decoded);
  if (rows == nullptr || width != shape(0).width || height != shape(0).height)
    throw Trouble(Status::damaged, "The picture " + quoted(path.string()) + " is damaged.");
  return QImage(rows, width, height, rowLength, format).copy();
}

}  // namespace tavrin
