#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tavrin {

// The last row of the dialog: help, and the buttons that fit what the dialog is doing.
class JobButtons : public QWidget {
  Q_OBJECT

 public:
  enum class State {
    cannotPrint,  // there is no printer yet to print on
    ready,
    printing,  // cancelling now takes the job back
    done,      // there is nothing left but to close
  };

  explicit JobButtons(QWidget* parent);

  void setState(State state);
  State state() const { return now; }
  // The person has asked for the job back, and that is on its way.
  void showCancelling();
  bool isCancelling() const { return cancelling; }

  // What is happening to the job, with how much of it is done: from 0 to 1, negative when nobody
  // knows.
  void showProgress(const QString& text, double done);

 signals:
  void helpWanted();
  void cancelled();
  void printWanted();
  // The dialog was left after printing.
  void closed();

 private:
  void addButtons();

  State now = State::cannotPrint;
  bool cancelling = false;
  QLabel* progressText;
  QProgressBar* progressBar;
  QPushButton* help;
  QPushButton* cancel;
  QPushButton* print;
};

}  // namespace tavrin
