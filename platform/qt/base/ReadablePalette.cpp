#include "platform/qt/base/ReadablePalette.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QEvent>
#include <QPalette>

namespace tavrin {

namespace {

// What is recommended for large texts and for the parts of controls.
constexpr double kLeastContrast = 3;

struct FaintText {
  QPalette::ColorGroup group;
  QPalette::ColorRole text;
  QPalette::ColorRole strongText;  // of the same kind, when it is not faint
  QPalette::ColorRole background;
};

constexpr FaintText kFaintTexts[] = {
    {QPalette::Disabled, QPalette::WindowText, QPalette::WindowText, QPalette::Window},
    {QPalette::Disabled, QPalette::Text, QPalette::Text, QPalette::Base},
    {QPalette::Disabled, QPalette::ButtonText, QPalette::ButtonText, QPalette::Button},
    {QPalette::Disabled, QPalette::PlaceholderText, QPalette::Text, QPalette::Base},
    {QPalette::Active, QPalette::PlaceholderText, QPalette::Text, QPalette::Base},
    {QPalette::Inactive, QPalette::PlaceholderText, QPalette::Text, QPalette::Base},
};

// The upper colour over the lower one, at that strength.
QColor mixed(const QColor& upper, const QColor& lower, double strength) {
  const auto part = [=](double over, double under) { return std::lerp(under, over, strength); };
  return QColor::fromRgbF(part(upper.redF(), lower.redF()), part(upper.greenF(), lower.greenF()),
                          part(upper.blueF(), lower.blueF()));
}

double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

// False when there was nothing to mend.
bool mend(QPalette& palette) {
  bool changed = false;
  for (const FaintText& faint : kFaintTexts) {
    const QColor background = palette.color(faint.group, faint.background);
    const QColor strong = palette.color(QPalette::Active, faint.strongText);
    const double wanted = std::min(kLeastContrast, contrast(strong, background));
    if (contrast(palette.color(faint.group, faint.text), background) >= wanted) continue;
    palette.setColor(faint.group, faint.text, readable(strong, background));
    changed = true;
  }
  return changed;
}

void mendApplication() {
  QPalette palette = QApplication::palette();
  if (mend(palette)) QApplication::setPalette(palette);
}

}  // namespace

double contrast(const QColor& text, const QColor& background) {
  const double one = luminance(mixed(text, background, text.alphaF())) + 0.05;
  const double other = luminance(background) + 0.05;
  return std::max(one, other) / std::min(one, other);
}

QColor readable(const QColor& strongText, const QColor& background) {
  for (double strength = 0.4; strength < 1; strength += 0.05)
    if (const QColor text = mixed(strongText, background, strength);
        contrast(text, background) >= kLeastContrast)
      return text;
  return strongText;
}

ReadablePalette::ReadablePalette() {
  if (!QCoreApplication::instance()) return;
  QCoreApplication::instance()->installEventFilter(this);
  mendApplication();
}

bool ReadablePalette::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange && watched == QCoreApplication::instance())
    mendApplication();
  return false;
}

}  // namespace tavrin
