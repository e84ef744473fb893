#include "host/program/SaveRun.h"

#include <utility>

#include "host/task/PrintTask.h"
#include "platform/files/StandardStreams.h"

namespace tavrin {

SaveRun::SaveRun(PrintTask& theTask, std::filesystem::path theFile)
    : task(theTask), file(std::move(theFile)) {
  connect(&task, &PrintTask::stageChanged, this, &SaveRun::follow, Qt::QueuedConnection);
  // Not before somebody listens.
  QMetaObject::invokeMethod(this, &SaveRun::follow, Qt::QueuedConnection);
}

void SaveRun::follow() {
  switch (task.stage()) {
    case PrintTask::Stage::ready:
      if (std::exchange(isAsked, true)) return emit ended();
      complain();
      task.saveAs(file, SheetsSaver::Existing::stays);
      if (task.canPrint()) emit ended();  // the settings are not possible
      return;
    case PrintTask::Stage::noPrinters:
    case PrintTask::Stage::choosing:
    case PrintTask::Stage::failed:
    case PrintTask::Stage::done:
      return emit ended();
    default:
      return;
  }
}

// What a dialog would say on opening.
void SaveRun::complain() {
  if (!task.notice().text.empty()) writeError("tavrin-print", task.notice().text);
}

}  // namespace tavrin
