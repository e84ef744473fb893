#include "platform/qt/controls/PendingChange.h"

#include <chrono>
#include <utility>

#include <QApplication>
#include <QKeyEvent>

namespace tavrin {

namespace {

constexpr std::chrono::milliseconds kPause{700};

// Space opens the list.
bool typesALetter(const QKeyEvent& key) {
  constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if (key.key() == Qt::Key_Shift || key.key() == Qt::Key_AltGr) return true;
  return !(key.modifiers() & kCommands) && key.key() != Qt::Key_Space && !key.text().isEmpty() &&
         key.text().front().isPrint();
}

bool moves(const QKeyEvent& key) {
  if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
      return true;
    default:
      return false;
  }
}

}  // namespace

PendingChange::PendingChange() {
  pause.setSingleShot(true);
  QObject::connect(&pause, &QTimer::timeout, this, &PendingChange::settle);
  if (QCoreApplication::instance()) QCoreApplication::instance()->installEventFilter(this);
}

void PendingChange::tellLater(QWidget& control, QObject& owner, std::function<void()> body) {
  if (changed != &control) settle();
  changed = &control;
  teller = &owner;
  tell = std::move(body);
  pause.start(kPause);
}

void PendingChange::settle() {
  pause.stop();
  const bool wasPending = isPending();
  changed.clear();
  const auto body = std::exchange(tell, {});
  if (wasPending) body();
}

void PendingChange::forget(const QWidget& control) {
  if (changed != &control) return;
  changed.clear();
  pause.stop();
}

bool PendingChange::goesOnStepping(const QObject& watched, const QKeyEvent& key) const {
  const bool isForControl = &watched == changed || QApplication::focusWidget() == changed;
  return isForControl && (moves(key) || typesALetter(key));
}

// A window that somebody closes stays if there is another one to look at first.
bool PendingChange::settleBefore(QObject* watched, QEvent& event) {
  const QPointer<QObject> receiver = watched;
  const int before = windowsBlocked;
  settle();
  if (receiver && windowsBlocked == before) return false;
  event.setAccepted(event.type() != QEvent::Close);
  return true;
}

bool PendingChange::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowBlocked) ++windowsBlocked;
  if (!isPending()) return false;
  switch (event->type()) {
    case QEvent::KeyPress:
      return !goesOnStepping(*watched, static_cast<QKeyEvent&>(*event)) &&
             settleBefore(watched, *event);
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::Close:
      return settleBefore(watched, *event);
    case QEvent::FocusOut:
    case QEvent::Hide:
      // No window may come up in the middle of these.
      if (watched == changed) pause.start(0);
      return false;
    default:
      return false;
  }
}

}  // namespace tavrin
