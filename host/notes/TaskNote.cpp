#include "host/notes/TaskNote.h"

#include <QFile>
#include <QFileDialog>

#include "host/notes/ShownSentence.h"
#include "host/panes/Widgets.h"
#include "host/task/PrintTask.h"

namespace tavrin {
namespace {

// On a button; empty where there is none.
QString nameOf(PrintTask::WayOut wayOut) {
  switch (wayOut) {
    case PrintTask::WayOut::lookAgain:
      return TaskNote::tr("Look A&gain");
    case PrintTask::WayOut::chooseFolder:
      return TaskNote::tr("Choose &Folder…");
    case PrintTask::WayOut::none:
      break;
  }
  return {};
}

}  // namespace

TaskNote::TaskNote(PrintTask& theTask, QWidget* parent) : Note(parent), task(theTask) {
  connect(&task, &PrintTask::noticeChanged, this, &TaskNote::refresh);
  connect(this, &Note::wayOutTaken, this, &TaskNote::takeWayOut);
  refresh();
}

void TaskNote::refresh() {
  const PrintTask::Notice& notice = task.notice();
  say(shownSentence(notice.text), notice.isWarning ? Kind::warning : Kind::information,
      nameOf(notice.wayOut));
}

void TaskNote::takeWayOut() {
  const PrintTask::WayOut wayOut = task.notice().wayOut;
  if (wayOut == PrintTask::WayOut::lookAgain) task.usePrintServer();
  if (wayOut == PrintTask::WayOut::chooseFolder) chooseFolder();
}

// In a window that does not hold up the dialog, which may have to end meanwhile.
void TaskNote::chooseFolder() {
  auto* chooser = makeChild<QFileDialog>(this, tr("Choose a Folder for the Job"));
  chooser->setAttribute(Qt::WA_DeleteOnClose);
  chooser->setFileMode(QFileDialog::Directory);
  chooser->setOption(QFileDialog::ShowDirsOnly);
  connect(chooser, &QFileDialog::fileSelected, &task, [this](const QString& folder) {
    task.setOutput(QFile::encodeName(folder).toStdString());
  });
  chooser->open();
}

}  // namespace tavrin
