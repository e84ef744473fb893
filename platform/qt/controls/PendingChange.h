#pragma once

#include <functional>

#include <QPointer>
#include <QTimer>
#include <QWidget>

class QKeyEvent;

namespace tavrin {

// A change that may be in passing: somebody goes through the items of a closed pop-up, and only the
// last of them is wanted. It is told when the person has stopped for a moment, and at once when the
// person does anything else: another key, a click, another focus, a window that closes. That
// happens after the change was told, and not at all if telling brought a window up, which nobody
// has seen yet.
class PendingChange : public QObject {
 public:
  // Does nothing without an application.
  PendingChange();

  // The control has changed. Tells later, unless the control or the teller is gone by then.
  // A change of the same control takes the place of an earlier one; one of another is told first.
  void tellLater(QWidget& control, QObject& teller, std::function<void()> tell);
  // Tells at once what is pending, if anything; windows may come up and go in the meantime.
  void settle();
  // The control shows something else by now: what is pending of it is never told.
  void forget(const QWidget& control);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isPending() const { return changed && teller; }
  bool goesOnStepping(const QObject& watched, const QKeyEvent& key) const;
  bool settleBefore(QObject* watched, QEvent& event);

  QPointer<QWidget> changed;
  QPointer<QObject> teller;
  std::function<void()> tell;
  QTimer pause;
  int windowsBlocked = 0;  // by modal windows, so far
};

}  // namespace tavrin
