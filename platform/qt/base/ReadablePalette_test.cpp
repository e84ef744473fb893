#include "platform/qt/base/ReadablePalette.h"

#include <QApplication>
#include <QPalette>
#include <gtest/gtest.h>

namespace tavrin {
namespace {

// A dark palette as some desktops have it: what is faint is darker than what it stands on.
QPalette darkPalette() {
  QPalette palette(QColor(53, 53, 53));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Disabled, role, QColor(40, 40, 40));
  }
  palette.setColor(QPalette::Base, QColor(35, 35, 35));
  palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
  return palette;
}

class ReadablePaletteTest : public testing::Test {
 protected:
  void TearDown() override { QApplication::setPalette(before); }

  static double contrastOf(QPalette::ColorGroup group, QPalette::ColorRole text,
                           QPalette::ColorRole background) {
    const QPalette palette = QApplication::palette();
    return contrast(palette.color(group, text), palette.color(group, background));
  }
  static void expectReadable() {
    using P = QPalette;
    EXPECT_GE(contrastOf(P::Disabled, P::WindowText, P::Window), 3);
    EXPECT_GE(contrastOf(P::Disabled, P::Text, P::Base), 3);
    EXPECT_GE(contrastOf(P::Disabled, P::ButtonText, P::Button), 3);
    EXPECT_GE(contrastOf(P::Active, P::PlaceholderText, P::Base), 3);
    EXPECT_GE(contrastOf(P::Inactive, P::PlaceholderText, P::Base), 3);
  }

  const QPalette before = QApplication::palette();
};

TEST_F(ReadablePaletteTest, KnowsHowClearlyColoursDiffer) {
  EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(contrast(Qt::white, Qt::white), 1, 0.01);
  EXPECT_LT(contrast(QColor(0, 0, 0, 30), Qt::white), 2);
}

TEST_F(ReadablePaletteTest, MendsThePaletteThatItFinds) {
  QApplication::setPalette(darkPalette());
  const ReadablePalette mended;
  expectReadable();
}

TEST_F(ReadablePaletteTest, MendsAPaletteThatComesLater) {
  const ReadablePalette mended;
  expectReadable();
  QApplication::setPalette(darkPalette());
  expectReadable();
  EXPECT_EQ(QApplication::palette().color(QPalette::WindowText), QColor(Qt::white));
}

TEST_F(ReadablePaletteTest, KeepsWhatIsFaintFainterThanTheRest) {
  QApplication::setPalette(darkPalette());
  const ReadablePalette mended;
  EXPECT_LT(contrastOf(QPalette::Disabled, QPalette::WindowText, QPalette::Window), 6);
  EXPECT_LT(contrastOf(QPalette::Active, QPalette::PlaceholderText, QPalette::Base), 6);
}

TEST_F(ReadablePaletteTest, LeavesAReadablePaletteAlone) {
  QPalette good = darkPalette();
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    good.setColor(QPalette::Disabled, role, QColor(150, 150, 150));
  good.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
  QApplication::setPalette(good);
  const ReadablePalette mended;
  EXPECT_EQ(QApplication::palette().color(QPalette::Disabled, QPalette::Text),
            QColor(150, 150, 150));
}

}  // namespace
}  // namespace tavrin
