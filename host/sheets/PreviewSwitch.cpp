#include "host/sheets/PreviewSwitch.h"

#include <QScreen>

namespace tavrin {

namespace {

// The preview is worth its place from so many line heights on.
constexpr int kLeastPreview = 12;

}  // namespace

PreviewSwitch::PreviewSwitch(QWidget& thePreview, QWidget& theSettings, QWidget* parent)
    : QPushButton(tr("Pre&view"), parent), preview(thePreview), settings(theSettings) {
  setObjectName("previewSwitch");
  setCheckable(true);
  connect(this, &QPushButton::clicked, this, &PreviewSwitch::take);
  apply();
}

void PreviewSwitch::setWanted(bool wanted) {
  isWanted = wanted;
  apply();
}

int PreviewSwitch::leastRoom() const {
  return settings.sizeHint().width() + kLeastPreview * fontMetrics().height();
}

void PreviewSwitch::setRoom(int width) {
  isNarrow = width < leastRoom();
  apply();
}

bool PreviewSwitch::hasRoomOnScreen() const {
  return screen()->availableSize().width() > leastRoom() + window()->width() - settings.width();
}

void PreviewSwitch::take(bool isDown) {
  if (isNarrow && !(isDown && hasRoomOnScreen())) {
    isInPlaceOfSettings = isDown;
    return apply();
  }
  isWanted = isDown;
  emit wantedChanged(isDown);
  apply();
}

void PreviewSwitch::apply() {
  const bool isShown = isNarrow ? isInPlaceOfSettings : isWanted;
  setChecked(isShown);
  preview.setVisible(isShown);
  settings.setVisible(!isNarrow || !isShown);
}

}  // namespace tavrin
