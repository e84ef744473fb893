#pragma once

#include <QPushButton>

namespace tavrin {

// The button that shows and hides the preview. Where the window is wide, the preview is beside the
// settings; where it is narrow, it takes their place until the button is
// pressed again.
class PreviewSwitch : public QPushButton {
  Q_OBJECT

 public:
  // Both widgets outlive the switch.
  PreviewSwitch(QWidget& preview, QWidget& settings, QWidget* parent);

  // Whether a wide window shows the preview; it does at first.
  void setWanted(bool wanted);
  // How wide the two are together, in pixels.
  void setRoom(int width);

 signals:
  // The person wants the preview beside the settings, or no longer; the window follows.
  void wantedChanged(bool wanted);

 private:
  int leastRoom() const;
  bool hasRoomOnScreen() const;
  bool isShown() const { return isNarrow ? isInPlaceOfSettings : isWanted; }
  void take(bool wanted);
  void apply();

  QWidget& preview;
  QWidget& settings;
  bool isNarrow = false;
  bool isWanted = true;  // beside the settings
  bool isInPlaceOfSettings = false;
};

}  // namespace tavrin
