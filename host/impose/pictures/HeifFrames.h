#pragma once

#include <filesystem>
#include <libheif/heif.h>
#include <memory>

#include "host/impose/pictures/PictureFrames.h"

namespace tavrin {

// The main picture of a HEIC, HEIF or AVIF file.
class HeifFrames : public PictureFrames {
 public:
  // Whether it is such a file, and one that can be read here.
  static bool knows(Bytes file);

  // The path is for sentences.
  HeifFrames(const std::filesystem::path& thePath, std::shared_ptr<MappedFile> theFile);

  int count() const override { return 1; }
  PictureShape shape(int) const override;
  bool isGrey(int) const override { return false; }
  QImage decoded(int) override;

 private:
  template <class T>
  using Handle = std::unique_ptr<T, void (*)(T*)>;

  void check(const heif_error& error) const;
  QImage pixels() const;

  std::filesystem::path path;
  std::shared_ptr<MappedFile> file;
  Handle<heif_context> context;
  Handle<const heif_image_handle> picture;
};

}  // namespace tavrin
