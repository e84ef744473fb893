#pragma once

#include "host/notes/Note.h"

namespace tavrin {

class PrintTask;

// Shows what a task has to tell the person, and takes the way out that comes with it.
class TaskNote : public Note {
  Q_OBJECT

 public:
  // The task outlives the note.
  TaskNote(PrintTask& task, QWidget* parent);

 private:
  void refresh();
  void takeWayOut();
  void chooseFolder();

  PrintTask& task;
};

}  // namespace tavrin
