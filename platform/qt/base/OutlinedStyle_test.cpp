#include "platform/qt/base/OutlinedStyle.h"

#include <QCheckBox>
#include <QPalette>
#include <gtest/gtest.h>

#include "platform/qt/base/ReadablePalette.h"

namespace tavrin {
namespace {

QPalette paletteOf(const QColor& text, const QColor& window) {
  QPalette palette(window);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(role, text);
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
    palette.setColor(role, window);
  return palette;
}

// A check box that is not ticked, without a text.
QImage drawnBox(const QPalette& palette, const QString& style) {
  OutlinedStyle outlined(style);
  QCheckBox box;
  box.setStyle(&outlined);
  box.setPalette(palette);
  box.resize(box.sizeHint());
  return box.grab().toImage();
}

// The most that a dot of the picture differs from the background.
double clearest(const QImage& picture, const QColor& background) {
  double most = 1;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      most = std::max(most, contrast(picture.pixelColor(x, y), background));
  return most;
}

TEST(OutlinedStyleTest, ABoxCanBeSeenInHighContrast) {
  EXPECT_GE(clearest(drawnBox(paletteOf(Qt::white, Qt::black), "fusion"), Qt::black), 3);
}

TEST(OutlinedStyleTest, NothingIsAddedWhereTheStyleIsClear) {
  EXPECT_FALSE(missingOutline(paletteOf(Qt::black, QColor(239, 239, 239))).isValid());
  EXPECT_TRUE(missingOutline(paletteOf(Qt::white, QColor(49, 54, 59))).isValid());
}

}  // namespace
}  // namespace tavrin
