#include "host/sheets/PreviewSwitch.h"

#include <QScreen>

namespace tavrin {

namespace {

// The preview is worth its place from so many line heights on.
constexpr int kLeastPreview = 12;

}  // namespace

PreviewSwitch::PreviewSwitch(QWidget& thePreview, QWidget& theSettings, QWidget* parent)
    : QPushButton(parent), preview(thePreview), settings(theSettings) {
  setObjectName("previewSwitch");
  connect(this, &QPushButton::clicked, this, [this] { take(!isShown()); });
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

void PreviewSwitch::take(bool wanted) {
  if (isNarrow && !(wanted && hasRoomOnScreen())) {
    isInPlaceOfSettings = wanted;
    return apply();
  }
  isWanted = wanted;
  emit wantedChanged(wanted);
  if (isNarrow) isInPlaceOfSettings = wanted;  // the window could not follow
  apply();
}

void PreviewSwitch::apply() {
  setText(isShown() ? tr("Hide Pre&view") : tr("Show Pre&view"));
  preview.setVisible(isShown());
  settings.setVisible(!isNarrow || !isShown());
}

}  // namespace tavrin
