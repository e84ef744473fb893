#include "platform/qt/controls/WheelAndReturn.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>

#include "platform/qt/base/ReturnKey.h"

namespace tavrin {

namespace {

bool changesByWheel(const QWidget& widget) {
  return qobject_cast<const QComboBox*>(&widget) ||
         qobject_cast<const QAbstractSpinBox*>(&widget) || qobject_cast<const QTabBar*>(&widget) ||
         (qobject_cast<const QAbstractSlider*>(&widget) &&
          !qobject_cast<const QScrollBar*>(&widget));
}

// The wheel would give the control the focus before the control sees it.
void takeNoFocusByWheel(QWidget& widget) {
  if (widget.focusPolicy() == Qt::WheelFocus) widget.setFocusPolicy(Qt::StrongFocus);
}

// An event that is taken and yet ignored goes on to the widget's parent.
bool passOn(QEvent& event) {
  event.ignore();
  return true;
}

// Whether a press on it does something: it sets nothing, as check boxes do.
bool isPushed(const QAbstractButton& button) {
  return !qobject_cast<const QCheckBox*>(&button) && !qobject_cast<const QRadioButton*>(&button);
}

// A key that is held down works the control once. The control may be gone afterwards.
bool workedByReturn(QWidget& widget, const QKeyEvent& key) {
  if (!isReturn(key)) return false;
  auto* popUp = qobject_cast<QComboBox*>(&widget);
  auto* button = qobject_cast<QAbstractButton*>(&widget);
  if (popUp && !popUp->isEditable()) {
    if (!key.isAutoRepeat()) popUp->showPopup();
    return true;
  }
  if (!button || !isPushed(*button)) return false;
  if (!key.isAutoRepeat()) button->click();
  return true;
}

}  // namespace

WheelAndReturn::WheelAndReturn() {
  if (QCoreApplication::instance()) QCoreApplication::instance()->installEventFilter(this);
}

bool WheelAndReturn::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWidgetType()) return false;
  auto& widget = static_cast<QWidget&>(*watched);
  switch (event->type()) {
    case QEvent::Polish:
      if (changesByWheel(widget)) takeNoFocusByWheel(widget);
      return false;
    case QEvent::Wheel:
      return changesByWheel(widget) && !widget.hasFocus() && passOn(*event);
    case QEvent::KeyPress:
      return workedByReturn(widget, static_cast<QKeyEvent&>(*event));
    default:
      return false;
  }
}

}  // namespace tavrin
