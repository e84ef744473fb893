#include "host/sheets/PreviewSwitch.h"

#include <QScreen>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace tavrin {
namespace {

// Settings that want to be so wide.
class Settings : public QWidget {
 public:
  using QWidget::QWidget;
  QSize sizeHint() const override { return QSize(wantedWidth, 300); }

  int wantedWidth = 400;
};

class PreviewSwitchTest : public testing::Test {
 protected:
  PreviewSwitchTest() {
    preview.setParent(&window);
    window.show();
  }
  void inWideWindow() { button.setRoom(2000); }
  // On the smallest of screens.
  void inNarrowWindow() { button.setRoom(100); }
  bool showsPreview() const { return preview.isVisible(); }
  bool showsSettings() const { return settings.isVisible(); }

  QWidget window;
  QWidget preview;
  Settings settings{&window};
  PreviewSwitch button{preview, settings, &window};
  QSignalSpy wanted{&button, &PreviewSwitch::wantedChanged};
};

TEST_F(PreviewSwitchTest, AWideWindowHasThePreviewBesideTheSettings) {
  inWideWindow();
  EXPECT_TRUE(showsPreview() && showsSettings());
  EXPECT_EQ(button.text().toStdString(), "Hide Pre&view");
}

TEST_F(PreviewSwitchTest, ThePersonCanHideIt) {
  inWideWindow();
  button.click();
  EXPECT_FALSE(showsPreview());
  EXPECT_EQ(wanted.count(), 1);
  EXPECT_FALSE(wanted[0][0].toBool());
  button.click();
  EXPECT_TRUE(showsPreview() && showsSettings());
  EXPECT_TRUE(wanted[1][0].toBool());
}

TEST_F(PreviewSwitchTest, ANarrowWindowFoldsItAway) {
  inNarrowWindow();
  EXPECT_FALSE(showsPreview());
  EXPECT_TRUE(showsSettings());
  EXPECT_EQ(button.text().toStdString(), "Show Pre&view");
  inWideWindow();
  EXPECT_TRUE(showsPreview());
}

TEST_F(PreviewSwitchTest, OnANarrowScreenItTakesThePlaceOfTheSettings) {
  settings.wantedWidth = window.screen()->availableSize().width();
  inNarrowWindow();
  button.click();
  EXPECT_TRUE(showsPreview());
  EXPECT_FALSE(showsSettings());
  button.click();
  EXPECT_TRUE(showsSettings());
  EXPECT_EQ(wanted.count(), 0);
}

TEST_F(PreviewSwitchTest, ANarrowWindowOnAWideScreenIsToBecomeWider) {
  window.resize(100, 100);
  settings.resize(100, 100);
  settings.wantedWidth = 200;
  inNarrowWindow();
  QObject::connect(&button, &PreviewSwitch::wantedChanged, [this] { inWideWindow(); });
  button.click();
  EXPECT_TRUE(showsPreview() && showsSettings());
}

TEST_F(PreviewSwitchTest, MayBeUnwantedFromTheStart) {
  button.setWanted(false);
  inWideWindow();
  EXPECT_FALSE(showsPreview());
  EXPECT_EQ(wanted.count(), 0);
}

}  // namespace
}  // namespace tavrin
