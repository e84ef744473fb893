#pragma once

#include <functional>

#include <QScrollArea>
#include <QUrl>

class QLabel;

namespace tavrin {

class PrintTask;

// What takes the place of the settings once the job arrived: where it is, and what it was.
class ResultPage : public QScrollArea {
  Q_OBJECT

 public:
  // How a folder is opened; false where nothing on this computer can.
  using Opener = std::function<bool(const QUrl&)>;

  // The task's job has arrived; the task outlives the page.
  ResultPage(PrintTask& task, Opener opener, QWidget* parent);
  // Opens folders as the desktop does.
  ResultPage(PrintTask& task, QWidget* parent);

 protected:
  // Has a screen reader say what became of the job.
  void showEvent(QShowEvent* event) override;

 private:
  void build();
  QWidget* makeIcon(bool isWarning);
  QWidget* makeDetails();
  QWidget* makeFolderButton();
  void openFolder();

  PrintTask& task;
  Opener open;
  QWidget* content;
  QLabel* text;
};

}  // namespace tavrin
