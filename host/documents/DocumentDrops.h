#pragma once

#include <QObject>

class QDropEvent;
class QWidget;

namespace tavrin {

class DropSign;
class PrintTask;

// Adds files that are dropped on a window to the documents of a task, wherever on the window that
// is: also on a control that would take their names for a text.
class DocumentDrops : public QObject {
  Q_OBJECT

 public:
  // The task outlives the drops, which are the window's.
  DocumentDrops(PrintTask& task, QWidget& window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool filterWindow(QEvent& event);
  bool takes(const QDropEvent& event) const;
  void take(QDropEvent& event);

  PrintTask& task;
  QWidget& window;
  DropSign* sign;
};

}  // namespace tavrin
