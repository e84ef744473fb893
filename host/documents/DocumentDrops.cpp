#include "host/documents/DocumentDrops.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QWindow>

#include "host/documents/AddedDocuments.h"
#include "host/documents/DropSign.h"
#include "host/task/PrintTask.h"
#include "platform/qt/base/MakeChild.h"

namespace tavrin {

DocumentDrops::DocumentDrops(PrintTask& theTask, QWidget& theWindow)
    : QObject(&theWindow), task(theTask), window(theWindow), sign(makeChild<DropSign>(theWindow)) {
  window.setAcceptDrops(true);
  window.installEventFilter(this);
}

// A drag comes to the system's window before it comes to the widgets in it.
bool DocumentDrops::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window.windowHandle()) return filterWindow(*event);
  if (event->type() == QEvent::Show) window.windowHandle()->installEventFilter(this);
  return false;
}

bool DocumentDrops::filterWindow(QEvent& event) {
  switch (event.type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      if (!takes(static_cast<QDropEvent&>(event))) return false;
      take(static_cast<QDropEvent&>(event));
      return true;
    case QEvent::DragLeave:
      sign->hide();
      return false;
    default:
      return false;
  }
}

// Files only, while the documents can be changed and no other window is in front.
bool DocumentDrops::takes(const QDropEvent& event) const {
  const QWidget* inFront = QApplication::activeModalWidget();
  return event.mimeData()->hasUrls() && task.canTakeDocuments() && (!inFront || inFront == &window);
}

// Whoever dragged the files goes on only when the drop is over.
void DocumentDrops::take(QDropEvent& event) {
  event.setDropAction(Qt::CopyAction);
  event.accept();
  if (event.type() != QEvent::Drop) {
    if (sign->isHidden()) sign->appear();
    return;
  }
  sign->hide();
  QTimer::singleShot(0, this, [this, urls = event.mimeData()->urls()] {
    if (task.canTakeDocuments()) addDocuments(task, urls);
  });
}

}  // namespace tavrin
