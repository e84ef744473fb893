#include "platform/qt/controls/WheelAndReturn.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
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

// A key that is held down opens the list once.
bool openedByReturn(QWidget& widget, const QKeyEvent& key) {
  auto* popUp = qobject_cast<QComboBox*>(&widget);
  if (!popUp || popUp->isEditable() || !isReturn(key)) return false;
  if (!key.isAutoRepeat()) popUp->showPopup();
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
      return openedByReturn(widget, static_cast<QKeyEvent&>(*event));
    default:
      return false;
  }
}

}  // namespace tavrin
