#include "platform/qt/base/OutlinedStyle.h"

#include <memory>

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

#include "platform/qt/base/ReadablePalette.h"

namespace tavrin {

namespace {

constexpr int kFusionDarker = 140;  // percent, how Fusion makes its outlines
constexpr double kEnoughContrast = 1.4;
constexpr double kCorner = 2;  // pixels

enum class Shape { none, box, circle };

Shape shapeOf(QStyle::PrimitiveElement element) {
  switch (element) {
    case QStyle::PE_IndicatorRadioButton:
      return Shape::circle;
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_PanelButtonCommand:
      return Shape::box;
    default:
      return Shape::none;
  }
}

void outline(Shape shape, const QStyleOption& option, QPainter& painter) {
  const QColor color = missingOutline(option.palette);
  if (shape == Shape::none || !color.isValid()) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(color);
  const QRectF rect = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  shape == Shape::circle ? painter.drawEllipse(rect)
                         : painter.drawRoundedRect(rect, kCorner, kCorner);
  painter.restore();
}

}  // namespace

QColor missingOutline(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  if (contrast(window.darker(kFusionDarker), window) >= kEnoughContrast) return {};
  return readable(palette.color(QPalette::WindowText), window);
}

void OutlinedStyle::install() {
  const bool isNeeded = missingOutline(QApplication::palette()).isValid();
  if (!isNeeded || QApplication::style()->name() != QStringLiteral("fusion")) return;
  QApplication::setStyle(std::make_unique<OutlinedStyle>(QStringLiteral("fusion")).release());
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  outline(shapeOf(element), *option, *painter);
}

void OutlinedStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  const bool isChosenTab =
      element == CE_TabBarTabShape && option->state.testFlag(QStyle::State_Selected);
  if (isChosenTab) outline(Shape::box, *option, *painter);
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  const bool isField = control == CC_ComboBox || control == CC_SpinBox;
  outline(isField ? Shape::box : Shape::none, *option, *painter);
}

}  // namespace tavrin
