#include "platform/qt/windows/ModalRuns.h"

#include <algorithm>

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

#include "platform/qt/windows/QtWindow.h"

namespace tavrin {

ModalRuns::ModalRuns() {
  if (QCoreApplication::instance()) QCoreApplication::instance()->installEventFilter(this);
}

// A program that quits closes its windows one by one, and a closing window stops its run. That must
// not look as if the user had answered.
bool ModalRuns::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Quit || watched != QCoreApplication::instance()) return false;
  quitting = true;
  // If a window refuses to close, the program goes on after all.
  QMetaObject::invokeMethod(
      this, [this] { quitting = false; }, Qt::QueuedConnection);
  return false;
}

void ModalRuns::end(Run& run) {
  run.over = true;
  run.loop.quit();
}

void ModalRuns::stop() {
  // An OK handler stops its run, and its window stops it once more as it closes. A run that is over
  // stays the innermost one until it has returned, so that the runs around it go on.
  if (runs.empty() || runs.back()->over) return;
  runs.back()->stopped = !quitting;
  end(*runs.back());
}

// The observer is called by the run's own loop, so that it can work the window as a user does.
void ModalRuns::handleEvents(Run& run, QtWindow& window) {
  QPointer<QWidget> shown = window.dialog();
  if (observer)
    QMetaObject::invokeMethod(
        &run.loop,
        [this, shown] {
          if (shown && shown->isVisible() && observer) observer(*shown);
        },
        Qt::QueuedConnection);
  if (!run.over) run.loop.exec();
}

bool ModalRuns::run(QtWindow& window) {
  if (quitting || !window.dialog() || !QCoreApplication::instance()) return false;
  const auto alive = window.keepAlive();
  Run run;
  runs.push_back(&run);
  window.onClosed([this, &run] { end(run); });
  if (!window.isUp()) window.display();
  handleEvents(run, window);
  const bool answered = run.stopped;
  // The run is still in the list: what a delegate stops now is this run, not one around it.
  if (!answered) window.close();
  window.onClosed({});
  std::erase(runs, &run);
  return answered;
}

}  // namespace tavrin
