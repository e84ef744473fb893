#pragma once

#include <QProxyStyle>

namespace tavrin {

// A style that draws an outline around controls where its own cannot be told from the background:
// Fusion draws them darker than the window, which is nothing in a dark palette or one of high
// contrast. Elsewhere everything looks as it does without it.
class OutlinedStyle : public QProxyStyle {
  Q_OBJECT

 public:
  // Has the application draw with this on top of its style, if that is one that needs it with the
  // palette of this moment.
  static void install();

  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
};

// The colour of such an outline; invalid where the style's own can be seen.
QColor missingOutline(const QPalette& palette);

}  // namespace tavrin
