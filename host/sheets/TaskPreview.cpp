#include "host/sheets/TaskPreview.h"

#include <QEvent>

#include "host/request/JobOptions.h"
#include "host/sheets/PreviewArea.h"
#include "host/task/PrintTask.h"

namespace tavrin {

namespace {

// One copy stands for all.
Preparation previewOf(const PrintTask& task) {
  Preparation job = task.preparation();
  removeOption(job.options, kCopiesOption);
  return job;
}

}  // namespace

TaskPreview::TaskPreview(PrintTask& theTask, PreviewArea& theArea) : task(theTask), area(theArea) {
  for (const auto signal :
       {&PrintTask::sessionBegun, &PrintTask::sessionRestarted, &PrintTask::optionsChanged,
        &PrintTask::documentsChanged, &PrintTask::stageChanged})
    connect(&task, signal, this, &TaskPreview::refresh);
  area.installEventFilter(this);
  refresh();
}

bool TaskPreview::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show || event->type() == QEvent::Hide) refresh();
  return QObject::eventFilter(watched, event);
}

void TaskPreview::refresh() {
  // The job wants the processor.
  const bool isTaken = task.isSending() || task.stage() == PrintTask::Stage::done;
  if (isTaken || area.isHidden()) return area.pause();
  // What is wrong with the pages is said beside them.
  if (!task.fields().pagesProblem().isEmpty()) return area.showNothing({});
  if (task.session()) return task.documents().areKnown() ? area.show(previewOf(task)) : area.wait();
  area.showNothing(task.canPrint()
                       ? tr("The printer gets the document as it is, so there is nothing to show.")
                       : QString());
}

}  // namespace tavrin
