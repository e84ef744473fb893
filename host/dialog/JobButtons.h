#pragma once

#include <QWidget>

#include "host/task/PrintTask.h"

class QHBoxLayout;
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

  // Puts a button beside that of help; it is the row's from then on.
  void addBesideHelp(QPushButton* button);

 signals:
  void helpWanted();
  void cancelled();
  void printWanted();
  // The dialog was left after printing.
  void closed();

 private:
  void addButtons();
  QString printText() const;
  void showStage();
  void showProgress(const Progress& progress);

  PrintTask& task;
  QLabel* progressText;
  QProgressBar* progressBar;
  QHBoxLayout* line;
  QPushButton* help;
  QPushButton* cancel;
  QPushButton* print;
};

}  // namespace tavrin
