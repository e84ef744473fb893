#pragma once

#include <QObject>

namespace tavrin {

class PreviewArea;
class PrintTask;

// Keeps a preview in step with a task, while the preview can be seen.
class TaskPreview : public QObject {
  Q_OBJECT

 public:
  // Both outlive this object.
  TaskPreview(PrintTask& task, PreviewArea& area);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void refresh();

  PrintTask& task;
  PreviewArea& area;
};

}  // namespace tavrin
