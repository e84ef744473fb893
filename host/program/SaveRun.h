#pragma once

#include <filesystem>

#include <QObject>

namespace tavrin {

class PrintTask;

// Saves a task's sheets as a PDF without anybody to ask: as soon as the printer's settings are
// there, with the settings as they are.
class SaveRun : public QObject {
  Q_OBJECT

 public:
  // The task outlives the run. A file that is there already stays as it is.
  SaveRun(PrintTask& task, std::filesystem::path file);

 signals:
  // It is done, or cannot be; the task says which, and why.
  void ended();

 private:
  void follow();
  void complain();

  PrintTask& task;
  std::filesystem::path file;
  bool isAsked = false;  // the task has been asked to save
};

}  // namespace tavrin
