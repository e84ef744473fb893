#pragma once

#include <QWidget>

#include "host/task/PrintTask.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace tavrin {

// The last row of the dialog: help, and the buttons that fit the task's stage.
class JobButtons : public QWidget {
  Q_OBJECT

 public:
  // The task outlives the buttons.
  JobButtons(PrintTask& task, QWidget* parent);

 signals:
  void helpWanted();
  void cancelled();
  void printWanted();
  // The dialog was left after printing.
  void closed();

 private:
  void addButtons();
  void showStage();
  void showProgress(const Progress& progress);

  PrintTask& task;
  QLabel* progressText;
  QProgressBar* progressBar;
  QPushButton* help;
  QPushButton* cancel;
  QPushButton* print;
};

}  // namespace tavrin
