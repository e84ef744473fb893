#include "host/impose/pictures/PictureShape.h"

#include <array>

namespace tavrin {

namespace {

constexpr int kFirstOnItsSide = 5;

// From orientation 1 on.
constexpr std::array<Matrix, 8> kMatrices{{{1, 0, 0, 1, 0, 0},
                                           {-1, 0, 0, 1, 1, 0},
                                           {-1, 0, 0, -1, 1, 1},
                                           {1, 0, 0, -1, 0, 1},
                                           {0, -1, -1, 0, 1, 1},
                                           {0, -1, 1, 0, 0, 1},
                                           {0, 1, 1, 0, 0, 0},
                                           {0, 1, -1, 0, 1, 0}}};

}  // namespace

PageLook PictureShape::look() const {
  const Size pixels{static_cast<double>(width), static_cast<double>(height)};
  const Size size{width * 72 / density.x, height * 72 / density.y};
  if (orientation < kFirstOnItsSide) return {size, true, pixels};
  return {onItsSide(size), true, onItsSide(pixels)};
}

Matrix PictureShape::matrix() const { return kMatrices[orientation - 1]; }

}  // namespace tavrin
